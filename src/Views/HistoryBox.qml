// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Morvane.Views.Controls

// The newest secrets of this run of the program. A click on a row displays the secret of that row.
Box {
    id: root

    required property list<string> history
    readonly property int maximumRowCount: 4
    readonly property int rowCount: Math.min(maximumRowCount, history.length)
    readonly property real rowPadding: 3

    signal chosen(string secret)

    // The height of the box with this number of rows.
    function heightOfRows(count: int): real {
        const row = Math.ceil(rowMetrics.height) + 2 * rowPadding;
        return heading.implicitHeight + count * (rows.spacing + row) + 2 * rows.anchors.margins;
    }

    color: Theme.box
    implicitHeight: rows.implicitHeight + 2 * rows.anchors.margins
    radius: Theme.boxRadius

    FontMetrics {
        id: rowMetrics

        font: Theme.rowFont
    }

    Column {
        id: rows

        anchors.fill: parent
        anchors.margins: Theme.scaled(16)
        spacing: 8

        Label {
            id: heading

            font: Theme.headlineFont
            objectName: "historyHeading"
            text: "Diese Sitzung"

            Accessible.role: Accessible.Heading
        }

        Repeater {
            model: root.rowCount

            Button {
                id: row

                required property int index
                // Not the `text` of the button, in which "&" makes the next character a shortcut.
                readonly property string secret: root.history[index] ?? ""

                flat: true
                font: Theme.rowFont
                horizontalPadding: 0
                // The background is wider than the row, to align the text with the heading.
                leftInset: -6
                objectName: "historyRow" + index
                radius: Theme.rowRadius
                rightInset: -6
                toolTip: (contentItem as PlainText).truncated ? secret : ""
                verticalPadding: root.rowPadding
                width: rows.width

                Accessible.description: "Holt diesen Wert zurück in die Anzeige."
                Accessible.name: secret

                onClicked: root.chosen(secret)

                contentItem: PlainText {
                    color: Theme.secondaryText
                    elide: Text.ElideRight
                    font: row.font
                    maximumLineCount: 1
                    objectName: "secret"
                    rightPadding: arrow.width + 8
                    text: row.secret
                }

                Icon {
                    id: arrow

                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    color: Theme.secondaryText
                    height: width
                    name: "arrow.up.left"
                    objectName: "arrow"
                    width: Theme.scaled(14)
                }
            }
        }
    }
}
