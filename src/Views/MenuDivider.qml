// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// Between groups of commands.
T.MenuSeparator {
    id: root

    implicitHeight: 9
    implicitWidth: 1
    width: parent ? parent.width : implicitWidth

    contentItem: Item {
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            color: Style.divider
            height: 1
            width: parent.width
        }
    }
}
