// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel
import Morvane.Views

Rectangle {
    id: root

    required property GeneratorViewModel model
    implicitHeight: topInset + controls.implicitHeight + controls.spacing + note.implicitHeight + 2 * padding
    implicitWidth: pickerTitle.implicitWidth + 10 + picker.implicitWidth + 2 * padding
    readonly property real padding: 24
    // What covers the panel at the top.
    required property real topInset

    color: Style.window

    GeneratorSettingsObserver {
        settings: root.model.settings

        onChanged: root.model.generate()
    }

    Column {
        id: controls

        anchors.left: parent.left
        anchors.margins: root.padding
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: root.padding + root.topInset
        objectName: "settingsColumn"
        spacing: 18

        SymbolLabel {
            font: Style.fonts.title2
            objectName: "title"
            symbol: "key.horizontal.fill"
            text: "Morvane"

            Accessible.name: text
            Accessible.role: Accessible.StaticText
        }

        Item {
            height: picker.height
            width: parent.width

            Text {
                id: pickerTitle

                anchors.verticalCenter: parent.verticalCenter
                color: Style.text
                font: Style.fonts.body
                text: "Art"
                textFormat: Text.PlainText
            }

            SegmentedPicker {
                id: picker

                anchors.left: pickerTitle.right
                anchors.leftMargin: 10
                anchors.right: parent.right
                choices: root.model.modeTitles
                currentIndex: root.model.settings.mode // qmllint disable type
                name: pickerTitle.text
                objectName: "modePicker"

                onChosen: index => root.model.settings.mode = index
            }
        }

        PasswordSettings {
            spacing: controls.spacing
            viewModel: root.model
            visible: root.model.settings.mode === 0 // qmllint disable type
            width: controls.width
        }

        // Read and built when they are first needed, and kept from then on: of a switch that is
        // built while a screen reader listens, Qt never gives back everything.
        Loader {
            readonly property bool needed: root.model.settings.mode === 1 // qmllint disable type

            visible: needed
            width: controls.width

            onNeededChanged: {
                if (needed && !item)
                    setSource("PassphraseSettings.qml", {
                            "spacing": controls.spacing,
                            "viewModel": root.model
                        });
            }
        }
    }

    Item {
        id: note

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: root.padding
        anchors.right: parent.right
        implicitHeight: noteText.implicitHeight
        objectName: "privacyNote"

        SymbolImage {
            id: noteSymbol

            anchors.verticalCenter: parent.verticalCenter
            color: Style.secondaryText
            height: width
            name: "lock.shield"
            objectName: "privacySymbol"
            width: Style.scaled(18)
        }

        Text {
            id: noteText

            anchors.left: noteSymbol.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            color: Style.secondaryText
            font: Style.fonts.caption
            objectName: "privacyText"
            text: "Alles bleibt auf diesem Mac. Es wird nichts gespeichert oder übertragen."
            textFormat: Text.PlainText
            wrapMode: Text.Wrap

            Accessible.name: text
            Accessible.role: Accessible.StaticText
        }
    }
}
