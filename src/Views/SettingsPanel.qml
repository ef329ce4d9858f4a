// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Morvane.ViewModel
import Morvane.Views.Controls

Box {
    id: root

    required property GeneratorViewModel model
    readonly property real padding: 24
    // The height by which the system's title bar covers the panel.
    required property real topInset

    signal fieldFocused(TextField field)

    color: Theme.window
    implicitHeight: topInset + controls.implicitHeight + controls.spacing + note.implicitHeight + 2 * padding
    implicitWidth: modeTitle.implicitWidth + mode.spacing + modePicker.implicitWidth + 2 * padding

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

        IconLabel {
            font: Theme.title2Font
            icon: "key.horizontal.fill"
            objectName: "title"
            text: "Morvane"

            Accessible.name: text
            Accessible.role: Accessible.StaticText
        }

        Row {
            id: mode

            spacing: 10
            width: parent.width

            PlainText {
                id: modeTitle

                anchors.verticalCenter: parent.verticalCenter
                text: "Art"
            }

            SegmentedControl {
                id: modePicker

                choices: root.model.modeTitles
                currentIndex: root.model.modeIndex
                name: modeTitle.text
                objectName: "modePicker"
                width: parent.width - modeTitle.width - parent.spacing

                onChosen: index => root.model.modeIndex = index
            }
        }

        // Each Repeater builds the settings of one mode while this mode is selected. Not a Loader,
        // because the Loader of Qt 6.4 cannot build components of a file with
        // `ComponentBehavior: Bound`.
        Repeater {
            model: root.model.isPassphrase ? 0 : 1

            PasswordSettings {
                spacing: controls.spacing
                model: root.model
                width: controls.width
            }
        }

        Repeater {
            model: root.model.isPassphrase ? 1 : 0

            PassphraseSettings {
                spacing: controls.spacing
                model: root.model
                width: controls.width

                onFieldFocused: field => root.fieldFocused(field)
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

        Icon {
            id: noteIcon

            anchors.verticalCenter: parent.verticalCenter
            color: Theme.secondaryText
            height: width
            name: "lock.shield"
            objectName: "privacySymbol"
            width: Theme.scaled(18)
        }

        Label {
            id: noteText

            anchors.left: noteIcon.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            color: Theme.secondaryText
            font: Theme.captionFont
            objectName: "privacyText"
            text: "Alles bleibt auf diesem Mac. Es wird nichts gespeichert oder übertragen."
            wrapMode: Text.Wrap
        }
    }
}
