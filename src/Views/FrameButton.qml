// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views

// A button of the window's frame: a symbol without a bezel.
T.Button {
    id: root

    property color highlight: Style.rowHovered
    property color highlightedSymbol: Style.text
    property color pressedHighlight: Style.rowPressed
    required property string symbol

    implicitHeight: 28
    implicitWidth: 32

    Accessible.name: root.text
    Accessible.onPressAction: root.clicked()

    background: Rectangle {
        color: root.down ? root.pressedHighlight : root.hovered ? root.highlight : "transparent"
        radius: 6

        Behavior on color  {
            ColorAnimation {
                duration: Style.transition
            }
        }

        FocusRing {
            anchors.margins: 0
            radius: 6
            shown: root.visualFocus
        }
    }
    contentItem: Item {
        SymbolImage {
            anchors.centerIn: parent
            color: root.hovered || root.down ? root.highlightedSymbol : Style.secondaryText
            height: width
            name: root.symbol
            width: 16
        }
    }
}
