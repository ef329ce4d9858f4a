// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel

Rectangle {
    id: root

    required property GeneratorViewModel model

    color: Style.surface

    Column {
        id: column

        anchors.centerIn: parent
        spacing: 22
        width: parent.width - 60

        Text {
            readonly property int size: PerceivedText.count(text) <= 38 ? Style.valueSize : Style.longValueSize

            anchors.horizontalCenter: parent.horizontalCenter
            color: Style.text
            elide: Text.ElideRight
            font.family: "monospace"
            font.pixelSize: size
            font.weight: Font.DemiBold
            fontSizeMode: Text.Fit
            height: Math.min(implicitHeight, 3 * metrics.height)
            horizontalAlignment: Text.AlignHCenter
            maximumLineCount: 3
            minimumPixelSize: Math.ceil(0.65 * size)
            objectName: "value"
            text: root.model.generated
            textFormat: Text.PlainText
            width: parent.width - 64
            wrapMode: Text.Wrap

            Accessible.name: text
            Accessible.role: Accessible.StaticText

            FontMetrics {
                id: metrics

                font.family: "monospace"
                font.pixelSize: Style.valueSize
                font.weight: Font.DemiBold
            }
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            Text {
                color: Style.strengthColor(root.model.strengthLevel)
                font.pixelSize: Style.calloutSize
                font.weight: Font.Medium
                objectName: "strength"
                text: root.model.strengthTitle
                textFormat: Text.PlainText

                Accessible.name: text
                Accessible.role: Accessible.StaticText
            }

            Text {
                color: Style.secondaryText
                font.pixelSize: Style.calloutSize
                font.weight: Font.Medium
                objectName: "entropy"
                text: "· ca. " + Math.trunc(root.model.entropy) + " Bit"
                textFormat: Text.PlainText

                Accessible.name: text
                Accessible.role: Accessible.StaticText
            }
        }

        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "generate"
            text: "Neu erzeugen"

            onClicked: root.model.generate()
        }

        HistoryBox {
            anchors.horizontalCenter: parent.horizontalCenter
            history: root.model.history
            objectName: "history"
            visible: root.model.history.length > 0
            width: Math.min(430, parent.width)

            onChosen: secret => root.model.useFromHistory(secret)
        }
    }

    Shortcut {
        sequence: "Ctrl+R"

        onActivated: root.model.generate()
    }
}
