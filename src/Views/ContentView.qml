// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel

// The content of the main window: settings on the left, the secret on the right. The one view model
// of the window lives here.
FocusScope {
    id: root

    property bool areShortcutsEnabled: true
    // The smallest size at which all is readable.
    readonly property real minimumHeight: Math.max(610, Math.ceil(settingsPanel.implicitHeight), Math.ceil(resultPanel.neededHeight))
    readonly property real minimumWidth: Math.max(760, Math.ceil(settingsPanel.width + divider.width + resultPanel.neededWidth))
    readonly property GeneratorViewModel model: GeneratorViewModel {
    }
    // How much of the top edge the window's frame covers.
    property real topInset: 0
    readonly property alias value: resultPanel.value

    // The settings come last: what they are made of is read while the rest is being built.
    Loader {
        id: settingsPanel

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        width: Math.max(280, Math.ceil(implicitWidth))

        Component.onCompleted: setSource("SettingsPanel.qml", {
                "model": root.model,
                "objectName": "settingsPanel",
                "topInset": Qt.binding(() => root.topInset)
            })
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
        areShortcutsEnabled: root.areShortcutsEnabled
        model: root.model
        objectName: "resultPanel"
    }

    // Read and built when it is first needed, and kept from then on.
    Loader {
        id: alert

        readonly property bool needed: root.model.errorPresented

        onNeededChanged: {
            if (needed && !item)
                setSource("ErrorAlert.qml", {
                        "message": Qt.binding(() => root.model.errorMessage),
                        "objectName": "errorAlert",
                        "parent": root,
                        "visible": Qt.binding(() => root.model.errorPresented)
                    });
        }
    }

    Connections {
        function onDismissed() {
            root.model.errorPresented = false;
        }

        target: alert.item
    }
}
