// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A button for an action that is neither the default nor destructive.
T.Button {
    id: root

    font.pixelSize: Style.bodySize
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: 16
    padding: 7
    rightPadding: 16

    background: Rectangle {
        border.color: Style.controlBorder
        color: root.down ? Style.controlPressed : Style.controlFill
        radius: 6

        Rectangle {
            anchors.fill: parent
            anchors.margins: -4
            border.color: Style.focusRing
            border.width: 2
            color: "transparent"
            radius: 10
            visible: root.visualFocus
        }
    }
    contentItem: Text {
        color: Style.text
        font: root.font
        horizontalAlignment: Text.AlignHCenter
        text: root.text
        textFormat: Text.PlainText
    }
}
