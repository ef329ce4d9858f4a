// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

// A symbol and a text beside it, in one colour, in the middle of their place.
Item {
    id: root

    property color color: Style.text
    property font font: Style.fonts.body
    // The widest of the texts that are shown in turn, so that the width stays.
    property string reservedText: text
    property alias symbol: image.name
    property alias text: label.text

    implicitHeight: row.implicitHeight
    implicitWidth: (symbol ? image.width + row.spacing : 0) + Math.max(label.implicitWidth, Math.ceil(reserved.advanceWidth))

    TextMetrics {
        id: reserved

        font: root.font
        text: root.reservedText
    }

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
