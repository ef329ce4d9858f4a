// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// Around the control that has the keyboard, in its parent's shape.
Rectangle {
    required property bool shown

    anchors.fill: parent
    anchors.margins: -4
    border.color: Style.focusRing
    border.width: 2
    color: "transparent"
    visible: shown
}
