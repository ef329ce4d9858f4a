// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Morvane.ViewModel

Rectangle {
    id: root

    required property GeneratorViewModel model

    color: Style.window

    GeneratorSettingsObserver {
        settings: root.model.settings

        onChanged: root.model.generate()
    }

    Column {
        id: controls

        anchors.left: parent.left
        anchors.margins: 24
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: 18

        Text {
            color: Style.text
            font.bold: true
            font.pixelSize: Style.title2Size
            text: "Morvane"
            textFormat: Text.PlainText

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
                font.pixelSize: Style.bodySize
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

        // Of each at most one, so that the controls of the other mode are not even built.
        Repeater {
            model: root.model.settings.mode === 0 ? 1 : 0 // qmllint disable type

            PasswordSettings {
                spacing: controls.spacing
                viewModel: root.model
                width: controls.width
            }
        }

        Repeater {
            model: root.model.settings.mode === 1 ? 1 : 0 // qmllint disable type

            PhraseSettings {
                spacing: controls.spacing
                viewModel: root.model
                width: controls.width
            }
        }
    }

    Text {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: 24
        anchors.right: parent.right
        color: Style.secondaryText
        font.pixelSize: Style.captionSize
        text: "Alles bleibt auf diesem Mac. Es wird nichts gespeichert oder übertragen."
        textFormat: Text.PlainText
        wrapMode: Text.Wrap

        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }
}
