// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.App
import Morvane.Views

Window {
    id: root

    color: Style.window
    flags: Qt.Dialog | Qt.CustomizeWindowHint | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowCloseButtonHint
    height: content.implicitHeight
    maximumHeight: height
    maximumWidth: width
    minimumHeight: height
    minimumWidth: width
    objectName: "about"
    title: "Über Morvane"
    width: content.implicitWidth

    WindowState {
        id: windowState

        window: root
    }

    AboutView {
        id: content

        anchors.fill: parent
    }

    Shortcut {
        enabled: windowState.focused
        sequences: ["Escape", "Ctrl+W"]

        onActivated: root.close()
    }

    Shortcut {
        enabled: windowState.focused
        sequence: "Ctrl+Q"

        onActivated: Qt.quit()
    }
}
