// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel

// The content of the main window: settings on the left, the secret on the right. The one view model
// of the window lives here.
FocusScope {
    id: root

    readonly property GeneratorViewModel model: GeneratorViewModel {
    }

    SettingsPanel {
        id: settingsPanel

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        model: root.model
        objectName: "settingsPanel"
        width: 280
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
        anchors.bottom: parent.bottom
        anchors.left: divider.right
        anchors.right: parent.right
        anchors.top: parent.top
        model: root.model
        objectName: "resultPanel"
    }

    ErrorAlert {
        message: root.model.errorMessage
        objectName: "errorAlert"
        visible: root.model.errorPresented

        onDismissed: root.model.errorPresented = false
    }
}
