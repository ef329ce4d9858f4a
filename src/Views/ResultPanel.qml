// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel
import Morvane.Views
import Morvane.Views.Controls

Box {
    id: root

    required property GeneratorViewModel model
    // The height of everything except the value, with a full history. The column itself gets its
    // height with the first frame, which is too late for the height of the window.
    readonly property real fixedHeight: icon.height + rating.height + buttons.height + note.height + history.heightOfRows(history.maximumRowCount) + 5 * column.spacing
    // The number of rows in the history when the pointer entered the panel. The history that grows
    // under the pointer does not move the buttons; the column is centred as if the number had stayed.
    property int heldRowCount: 0
    // The height that the panel needs for a long secret on three lines and a full history.
    readonly property real neededHeight: fixedHeight + value.longSecretHeight + 2 * (root.padding + column.spacing)
    // The width that the panel needs for the longest secret, at the default text size and above.
    readonly property real neededWidth: Math.max(buttons.implicitWidth, rating.implicitWidth, Theme.scaled(355) + 2 * root.valuePadding) + 2 * root.padding
    readonly property real padding: 30
    readonly property alias value: value
    readonly property real valuePadding: 32

    signal valueFocused

    color: Theme.surface

    HoverHandler {
        id: pointer

        onHoveredChanged: root.heldRowCount = history.rowCount
    }

    Announcer {
        model: root.model

        Accessible.name: message
        Accessible.role: Accessible.Notification
    }

    Column {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        objectName: "resultColumn"
        spacing: 22
        width: parent.width - 2 * root.padding
        // A full history has space below the buttons, also while the pointer holds the column.
        y: Math.min(root.height - root.padding - root.fixedHeight - value.height, Math.round((root.height - height + heldGrowth) / 2))

        // The height by which the history has grown under the pointer.
        readonly property real heldGrowth: pointer.hovered ? history.height - history.heightOfRows(root.heldRowCount) : 0

        Icon {
            id: icon

            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.accent
            height: width
            name: "sparkles"
            objectName: "icon"
            width: Theme.scaled(34)
        }

        ValueText {
            id: value

            anchors.horizontalCenter: parent.horizontalCenter
            isLong: root.model.isLong
            settings: root.model.settings
            text: root.model.generated
            width: parent.width - 2 * root.valuePadding

            onActiveFocusChanged: {
                if (activeFocus)
                    root.valueFocused();
            }
        }

        Row {
            id: rating

            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            IconLabel {
                color: Theme.strengthColors[root.model.strengthLevel]
                font: Theme.ratingFont
                icon: root.model.strengthSymbol
                objectName: "strength"
                text: root.model.strengthTitle

                Accessible.name: text
                Accessible.role: Accessible.StaticText
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.secondaryText
                font: Theme.ratingFont
                objectName: "entropy"
                text: "· ca. " + Math.trunc(root.model.entropy) + " Bit"
            }
        }

        Row {
            id: buttons

            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 12

            Button {
                icon.name: "arrow.clockwise"
                objectName: "generate"
                text: "Neu erzeugen"

                onClicked: root.model.generate()
            }

            Button {
                highlighted: true
                icon.name: root.model.copied ? "checkmark" : "doc.on.doc"
                objectName: "copy"
                reservedText: "Kopieren"
                text: root.model.copied ? "Kopiert" : "Kopieren"

                onClicked: root.model.copyToClipboard()
            }
        }

        Label {
            id: note

            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.tertiaryText
            font: Theme.captionFont
            horizontalAlignment: Text.AlignHCenter
            objectName: "clipboardNote"
            text: "Die Zwischenablage wird nach 30 Sekunden geleert, sofern du nichts anderes kopierst."
            // Two lines of nearly equal length if the text does not fit on one line.
            width: implicitWidth > parent.width ? Math.min(parent.width, 0.6 * implicitWidth) : parent.width
            wrapMode: Text.Wrap
        }

        HistoryBox {
            id: history

            anchors.horizontalCenter: parent.horizontalCenter
            history: root.model.history
            objectName: "history"
            visible: root.model.history.length > 0
            width: Math.min(Theme.scaled(430), parent.width)

            onChosen: secret => root.model.useFromHistory(secret)
        }
    }

    // Since Qt 6.8, a shortcut also matches while another window of the program has keyboard focus.
    Shortcut {
        enabled: root.Window.activeFocusItem !== null
        sequence: "Ctrl+R"

        onActivated: root.model.generate()
    }

    Shortcut {
        enabled: root.Window.activeFocusItem !== null
        sequence: "Ctrl+Shift+C"

        onActivated: root.model.copyToClipboard()
    }
}
