// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQml.Models
import QtQuick
import Morvane.ViewModel

// The content of the main window: settings on the left, the secret on the right. The one view model
// of the window lives here.
FocusScope {
    id: root

    // The smallest size at which all is readable.
    readonly property real minimumHeight: Math.max(610, Math.ceil(settingsPanel.neededHeight), Math.ceil(resultPanel.neededHeight))
    readonly property real minimumWidth: Math.max(760, Math.ceil(settingsPanel.width + divider.width + resultPanel.neededWidth))
    readonly property GeneratorViewModel model: GeneratorViewModel {
    }
    // How much of the top edge the window's frame covers.
    property real topInset: 0
    readonly property alias value: resultPanel.value

    SettingsPanel {
        id: settingsPanel

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        model: root.model
        objectName: "settingsPanel"
        topInset: root.topInset
        width: Math.max(280, Math.ceil(neededWidth))
    }

    Rectangle {
        id: divider

        anchors.bottom: parent.bottom
        anchors.left: settingsPanel.right
        anchors.top: parent.top
        color: Style.divider
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
    }

    // Built when it is first needed, and kept from then on.
    Instantiator {
        readonly property bool needed: root.model.errorPresented

        active: false

        ErrorAlert {
            message: root.model.errorMessage
            objectName: "errorAlert"
            parent: root
            visible: root.model.errorPresented

            onDismissed: root.model.errorPresented = false
        }

        onNeededChanged: active = true
    }
}
