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
            font: Style.fonts.headline
            objectName: "historyHeading"
            text: "Diese Sitzung"
            textFormat: Text.PlainText

            Accessible.name: text
            Accessible.role: Accessible.Heading
        }

        Repeater {
            model: Math.min(4, root.history.length)

            HistoryRow {
                required property int index
                objectName: "historyRow" + index
                secret: root.history[index] ?? ""
                width: rows.width

                onClicked: root.chosen(secret)
            }
        }
    }
}
