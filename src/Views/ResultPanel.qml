// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel
import Morvane.Views

Rectangle {
    id: root

    property bool areShortcutsEnabled: true
    required property GeneratorViewModel model
    readonly property alias value: value

    // What the panel needs when its secret is as high as it can become.
    readonly property real neededHeight: column.implicitHeight - value.implicitHeight + value.largestHeight + 2 * (root.padding + column.spacing)
    // The longest secrets fit into the smallest window, and shall do so in larger text as well.
    readonly property real neededWidth: Math.max(buttons.implicitWidth, rating.implicitWidth, Style.scaled(355) + 64) + 2 * root.padding
    readonly property real padding: 30

    color: Style.surface

    Column {
        id: column

        anchors.centerIn: parent
        objectName: "resultColumn"
        spacing: 22
        width: parent.width - 2 * root.padding

        SymbolImage {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Style.accent
            height: width
            name: "sparkles"
            objectName: "icon"
            width: Style.scaled(34)
        }

        ValueText {
            id: value

            anchors.horizontalCenter: parent.horizontalCenter
            text: root.model.generated
            width: parent.width - 64
        }

        Row {
            id: rating

            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            SymbolLabel {
                color: Style.strengthColor(root.model.strengthLevel)
                font: Style.fonts.rating
                objectName: "strength"
                symbol: root.model.strengthSymbol
                text: root.model.strengthTitle

                Accessible.name: text
                Accessible.role: Accessible.StaticText
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                color: Style.secondaryText
                font: Style.fonts.rating
                objectName: "entropy"
                text: "· ca. " + Math.trunc(root.model.entropy) + " Bit"
                textFormat: Text.PlainText

                Accessible.name: text
                Accessible.role: Accessible.StaticText
            }
        }

        Row {
            id: buttons

            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 12

            PushButton {
                objectName: "generate"
                symbol: "arrow.clockwise"
                text: "Neu erzeugen"

                onClicked: root.model.generate()
            }

            ProminentButton {
                objectName: "copy"
                reservedText: "Kopieren"
                symbol: root.model.copied ? "checkmark" : "doc.on.doc"
                text: root.model.copied ? "Kopiert" : "Kopieren"

                onClicked: root.model.copyToClipboard()
            }
        }

        Text {
            color: Style.tertiaryText
            font: Style.fonts.caption
            horizontalAlignment: Text.AlignHCenter
            objectName: "clipboardNote"
            text: "Die Zwischenablage wird nach 30 Sekunden geleert, sofern du nichts anderes kopierst."
            textFormat: Text.PlainText
            width: parent.width
            wrapMode: Text.Wrap

            Accessible.name: text
            Accessible.role: Accessible.StaticText
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
        enabled: root.areShortcutsEnabled
        sequence: "Ctrl+R"

        onActivated: root.model.generate()
    }

    Shortcut {
        enabled: root.areShortcutsEnabled
        sequence: "Ctrl+Shift+C"

        onActivated: root.model.copyToClipboard()
    }
}
