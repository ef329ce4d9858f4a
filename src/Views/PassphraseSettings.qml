// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel

Column {
    id: root

    required property GeneratorViewModel viewModel

    // The long text is a change of the settings in its own right, and so is the shortened one.
    Connections {
        function onSettingsChanged() {
            const separator = root.viewModel.settings.separator;
            const limited = PerceivedText.first(separator, 3);
            if (limited !== separator)
                root.viewModel.settings.separator = limited;
        }

        target: root.viewModel
    }

    NumberSlider {
        from: 3
        name: "Wörter"
        objectName: "wordCount"
        to: 8
        value: root.viewModel.settings.wordCount // qmllint disable type
        width: parent.width

        onChosen: number => root.viewModel.settings.wordCount = number
    }

    Column {
        spacing: 6
        width: parent.width

        Text {
            id: separatorTitle

            color: Style.text
            font: Style.fonts.callout
            objectName: "separatorTitle"
            text: "Trennzeichen"
            textFormat: Text.PlainText
        }

        LineField {
            objectName: "separator"
            placeholderText: separatorTitle.text
            text: root.viewModel.settings.separator
            width: parent.width

            Accessible.name: separatorTitle.text

            onTextEdited: root.viewModel.settings.separator = text
        }
    }

    Toggle {
        checked: root.viewModel.settings.capitalizeWords
        objectName: "capitalizeWords"
        text: "Wörter groß beginnen"
        width: parent.width

        onToggled: root.viewModel.settings.capitalizeWords = checked
    }

    Toggle {
        checked: root.viewModel.settings.appendNumber
        objectName: "appendNumber"
        text: "Zahl anhängen"
        width: parent.width

        onToggled: root.viewModel.settings.appendNumber = checked
    }
}
