// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A line between groups of menu items.
T.MenuSeparator {
    implicitHeight: 9
    width: parent ? parent.width : implicitWidth

    contentItem: Item {
        Box {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.divider
            height: 1
            width: parent.width
        }
    }
}
