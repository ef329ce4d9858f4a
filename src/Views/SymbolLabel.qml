// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

// A symbol and a text beside it, in one colour, in the middle of their place.
Item {
    id: root

    property color color: Style.text
    property font font: Style.fonts.body
    property alias symbol: image.name
    property alias text: label.text

    implicitHeight: row.implicitHeight
    implicitWidth: row.implicitWidth

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Math.round(root.font.pixelSize * 0.45)

        SymbolImage {
            id: image

            anchors.verticalCenter: parent.verticalCenter
            color: root.color
            height: width
            name: ""
            visible: name !== ""
            width: Math.round(root.font.pixelSize * 1.25)
        }

        Text {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            color: root.color
            font: root.font
            textFormat: Text.PlainText
        }
    }
}
