// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel
import Morvane.Views.Controls

Column {
    id: root

    // Not `required`, because a Repeater sets a required property named `model` to its own model.
    property GeneratorViewModel model

    signal fieldFocused(TextField field)

    Connections {
        function onSettingsChanged() {
            root.model.limitSeparator();
        }

        target: root.model
    }

    LabeledSlider {
        from: 3
        name: "Wörter"
        objectName: "wordCount"
        to: 8
        value: root.model.settings.wordCount // qmllint disable type

        onChosen: number => root.model.settings.wordCount = number
    }

    Column {
        spacing: 6
        width: parent.width

        PlainText {
            font: Theme.calloutFont
            objectName: "separatorTitle"
            text: "Trennzeichen"
        }

        TextField {
            id: separator

            objectName: "separator"
            placeholderText: "Trennzeichen"
            value: root.model.settings.separator
            width: parent.width

            Accessible.name: placeholderText

            onActiveFocusChanged: {
                if (activeFocus)
                    root.fieldFocused(separator);
            }
            onEdited: text => root.model.settings.separator = text
        }
    }

    Switch {
        checked: root.model.settings.capitalizeWords
        objectName: "capitalizeWords"
        text: "Wörter groß beginnen"

        onToggled: root.model.settings.capitalizeWords = checked
    }

    Switch {
        checked: root.model.settings.appendNumber
        objectName: "appendNumber"
        text: "Zahl anhängen"

        onToggled: root.model.settings.appendNumber = checked
    }
}
