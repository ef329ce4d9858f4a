// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// An earlier secret, on one line, to be taken back.
T.Button {
    id: root

    font.family: "monospace"
    font.pixelSize: Style.calloutSize
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    padding: 2

    background: Rectangle {
        border.color: Style.focusRing
        border.width: root.visualFocus ? 2 : 0
        color: root.down || root.hovered ? Style.rowHighlight : "transparent"
        radius: 4
    }
    contentItem: Text {
        color: Style.secondaryText
        elide: Text.ElideRight
        font: root.font
        maximumLineCount: 1
        text: root.text
        textFormat: Text.PlainText
    }
}
