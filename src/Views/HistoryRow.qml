// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views
import QtQuick.Templates as T

// An earlier secret, on one line, to be taken back.
T.Button {
    id: root

    // Not the text of the button, in which an ampersand makes the next character a shortcut.
    required property string secret

    font: Style.fonts.row
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: 0
    padding: 3
    rightPadding: 0

    Accessible.description: "Holt diesen Wert zurück in die Anzeige."
    Accessible.name: secret

    Accessible.onPressAction: root.clicked()

    background: Item {
        // Wider than the row, so that the text keeps its line with the heading.
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: -6
            anchors.rightMargin: -6
            color: root.down ? Style.rowPressed : root.hovered ? Style.rowHovered : "transparent"
            radius: 5

            Behavior on color  {
                ColorAnimation {
                    duration: Style.transition
                }
            }

            FocusRing {
                anchors.margins: 0
                radius: 5
                shown: root.visualFocus
            }
        }
    }
    contentItem: Text {
        color: Style.secondaryText
        elide: Text.ElideRight
        font: root.font
        maximumLineCount: 1
        objectName: "secret"
        rightPadding: arrow.width + 8
        text: root.secret
        textFormat: Text.PlainText
    }

    SymbolImage {
        id: arrow

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: Style.secondaryText
        height: width
        name: "arrow.up.left"
        objectName: "arrow"
        width: Style.scaled(14)
    }
}
