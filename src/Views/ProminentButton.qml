// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// The button that a person most likely wants, filled with the accent colour.
T.Button {
    id: root

    font.pixelSize: Style.bodySize
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    padding: 7

    background: Rectangle {
        color: root.down ? Style.accentFillPressed : Style.accentFill
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
        color: Style.accentText
        font: root.font
        horizontalAlignment: Text.AlignHCenter
        text: root.text
        textFormat: Text.PlainText
    }
}
