// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views
import Morvane.Views.Controls

Window {
    id: root

    color: Theme.window
    flags: Qt.Dialog | Qt.CustomizeWindowHint | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowCloseButtonHint
    height: content.implicitHeight
    maximumHeight: height
    maximumWidth: width
    minimumHeight: height
    minimumWidth: width
    objectName: "about"
    title: "Über Morvane"
    width: content.implicitWidth

    AboutView {
        id: content

        anchors.fill: parent
    }

    // Since Qt 6.8, a shortcut also matches while another window of the program has keyboard focus.
    Shortcut {
        enabled: root.activeFocusItem !== null
        sequences: ["Escape", "Ctrl+W"]

        onActivated: root.close()
    }

    Shortcut {
        enabled: root.activeFocusItem !== null
        sequence: "Ctrl+Q"

        onActivated: Qt.quit()
    }
}
