// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick

// The newest secrets of the run, of which the user can take one back.
Rectangle {
    id: root

    required property list<string> history

    signal chosen(string secret)

    color: Style.box
    implicitHeight: rows.implicitHeight + 32
    radius: 12

    Column {
        id: rows

        anchors.fill: parent
        anchors.margins: 16
        spacing: 8

        Text {
            color: Style.text
            font.pixelSize: Style.headlineSize
            font.weight: Font.DemiBold
            text: "Diese Sitzung"
            textFormat: Text.PlainText

            Accessible.name: text
            Accessible.role: Accessible.Heading
        }

        Repeater {
            model: root.history.slice(0, 4)

            HistoryRow {
                required property int index
                required property string modelData

                objectName: "historyRow" + index
                text: modelData
                width: rows.width

                onClicked: root.chosen(modelData)
            }
        }
    }
}
