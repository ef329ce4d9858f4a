// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel
import Morvane.Views.Controls

Column {
    id: root

    // Not `required`, because a Repeater sets a required property named `model` to its own model.
    property GeneratorViewModel model

    LabeledSlider {
        from: 8
        name: "Länge"
        objectName: "length"
        to: 64
        value: root.model.settings.length // qmllint disable type

        onChosen: number => root.model.settings.length = number
    }

    Column {
        spacing: 10
        width: parent.width

        Switch {
            checked: root.model.settings.lowercase
            objectName: "lowercase"
            text: "Kleinbuchstaben"

            onToggled: root.model.settings.lowercase = checked
        }

        Switch {
            checked: root.model.settings.uppercase
            objectName: "uppercase"
            text: "Großbuchstaben"

            onToggled: root.model.settings.uppercase = checked
        }

        Switch {
            checked: root.model.settings.numbers
            objectName: "numbers"
            text: "Zahlen"

            onToggled: root.model.settings.numbers = checked
        }

        Switch {
            checked: root.model.settings.symbols
            objectName: "symbols"
            text: "Sonderzeichen"

            onToggled: root.model.settings.symbols = checked
        }
    }

    Box {
        color: Theme.divider
        height: 1
        width: parent.width
    }

    Switch {
        checked: root.model.settings.avoidAmbiguous
        objectName: "avoidAmbiguous"
        text: "Ähnliche Zeichen vermeiden"

        onToggled: root.model.settings.avoidAmbiguous = checked
    }

    Switch {
        checked: root.model.settings.requireEveryGroup
        objectName: "requireEveryGroup"
        text: "Jede Gruppe muss vorkommen"

        onToggled: root.model.settings.requireEveryGroup = checked
    }
}
