// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel

Column {
    id: root

    required property GeneratorViewModel viewModel

    NumberSlider {
        from: 8
        name: "Länge"
        objectName: "length"
        to: 64
        value: root.viewModel.settings.length // qmllint disable type
        width: parent.width

        onChosen: number => root.viewModel.settings.length = number
    }

    Column {
        spacing: 10
        width: parent.width

        Toggle {
            checked: root.viewModel.settings.lowercase
            objectName: "lowercase"
            text: "Kleinbuchstaben"
            width: parent.width

            onToggled: root.viewModel.settings.lowercase = checked
        }

        Toggle {
            checked: root.viewModel.settings.uppercase
            objectName: "uppercase"
            text: "Großbuchstaben"
            width: parent.width

            onToggled: root.viewModel.settings.uppercase = checked
        }

        Toggle {
            checked: root.viewModel.settings.numbers
            objectName: "numbers"
            text: "Zahlen"
            width: parent.width

            onToggled: root.viewModel.settings.numbers = checked
        }

        Toggle {
            checked: root.viewModel.settings.symbols
            objectName: "symbols"
            text: "Sonderzeichen"
            width: parent.width

            onToggled: root.viewModel.settings.symbols = checked
        }
    }

    Rectangle {
        color: Style.divider
        height: 1
        width: parent.width
    }

    Toggle {
        checked: root.viewModel.settings.avoidAmbiguous
        objectName: "avoidAmbiguous"
        text: "Ähnliche Zeichen vermeiden"
        width: parent.width

        onToggled: root.viewModel.settings.avoidAmbiguous = checked
    }

    Toggle {
        checked: root.viewModel.settings.requireEveryGroup
        objectName: "requireEveryGroup"
        text: "Jede Gruppe muss vorkommen"
        width: parent.width

        onToggled: root.viewModel.settings.requireEveryGroup = checked
    }
}
