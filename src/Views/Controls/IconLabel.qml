// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views.Controls

// An icon and a text side by side, in the same colour, centred.
Item {
    id: root

    property color color: Theme.text
    property font font: Theme.bodyFont
    property alias icon: image.name
    // The widest of the texts that the label shows in turn. The label's width fits this text.
    property string reservedText: text
    property alias text: label.text

    implicitHeight: row.implicitHeight
    implicitWidth: (icon ? image.width + row.spacing : 0) + Math.max(label.implicitWidth, Math.ceil(reserved.advanceWidth))

    TextMetrics {
        id: reserved

        font: root.font
        text: root.reservedText
    }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Math.round(root.font.pixelSize * 0.45)

        Icon {
            id: image

            anchors.verticalCenter: parent.verticalCenter
            color: root.color
            height: width
            name: ""
            visible: name !== ""
            width: Math.round(root.font.pixelSize * 1.25)
        }

        PlainText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            color: root.color
            font: root.font
        }
    }
}
