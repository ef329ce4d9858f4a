// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views.Controls

// A button of the title bar: an icon without a bezel.
Button {
    id: root

    property color highlightedIcon: Theme.text

    flat: true
    implicitHeight: 28
    implicitWidth: 32

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            color: root.hovered || root.down ? root.highlightedIcon : Theme.secondaryText
            height: width
            name: root.icon.name
            width: 16
        }
    }
}
