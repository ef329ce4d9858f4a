// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQml.Models
import Morvane.ViewModel
import Morvane.Views.Controls

// The content of the main window: the settings on the left, the secret on the right.
FocusScope {
    id: root

    // The text field that last had keyboard focus; null if the secret has had keyboard focus since
    // then.
    property TextField field
    // The smallest size at which no text is cut off.
    readonly property real minimumHeight: Math.max(610, Math.ceil(settingsPanel.implicitHeight), Math.ceil(resultPanel.neededHeight))
    readonly property real minimumWidth: Math.max(760, Math.ceil(settingsPanel.width + divider.width + resultPanel.neededWidth))
    readonly property GeneratorViewModel model: GeneratorViewModel {
    }
    readonly property string selectedText: field ? field.selectedText : value.selectedText
    // The height by which the system's title bar covers the settings panel.
    property real topInset: 0
    readonly property alias value: resultPanel.value

    function copySelection(): void {
        if (field)
            field.copy();
        else
            value.copy();
    }

    function selectAll(): void {
        if (field)
            field.selectAll();
        else
            value.selectAll();
    }

    SettingsPanel {
        id: settingsPanel

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        model: root.model
        objectName: "settingsPanel"
        topInset: root.topInset
        width: Math.max(Theme.scaled(280), Math.ceil(implicitWidth))

        onFieldFocused: field => root.field = field
    }

    Box {
        id: divider

        anchors.bottom: parent.bottom
        anchors.left: settingsPanel.right
        anchors.top: parent.top
        color: Theme.divider
        objectName: "panelDivider"
        width: 1
    }

    ResultPanel {
        id: resultPanel

        anchors.bottom: parent.bottom
        anchors.left: divider.right
        anchors.right: parent.right
        anchors.top: parent.top
        model: root.model
        objectName: "resultPanel"

        onValueFocused: root.field = null
    }

    // Built for the first error and then kept: without it, the first frame comes 3 % earlier.
    Instantiator {
        readonly property bool isNeeded: root.model.errorPresented

        active: false

        onIsNeededChanged: active = true

        ErrorAlert {
            message: root.model.errorMessage
            objectName: "errorAlert"
            parent: root
            visible: root.model.errorPresented

            onDismissed: root.model.errorPresented = false
        }
    }
}
