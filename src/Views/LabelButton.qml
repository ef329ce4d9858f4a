// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A button with a bezel: a text, and a symbol before it if it has one.
T.Button {
    id: root

    required property color fill
    required property color fillHovered
    required property color fillPressed
    required property color foreground
    required property color outline
    // The widest of the texts that the button shows in turn, so that it keeps its width.
    property string reservedText: text
    property string symbol

    font: Style.fonts.body
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: 16
    opacity: enabled ? 1 : 0.4
    padding: 7
    rightPadding: 16

    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        border.color: root.outline
        color: root.down ? root.fillPressed : root.hovered ? root.fillHovered : root.fill
        radius: 6

        Behavior on color  {
            ColorAnimation {
                duration: Style.transition
            }
        }

        FocusRing {
            radius: 10
            shown: root.visualFocus
        }
    }
    contentItem: SymbolLabel {
        color: root.foreground
        font: root.font
        reservedText: root.reservedText
        symbol: root.symbol
        text: root.text
    }
}
