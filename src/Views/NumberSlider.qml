// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// A whole number to choose, with its name and its value above the slider.
Column {
    id: root

    required property real from
    required property string name
    required property real to
    required property real value

    signal chosen(int number)

    spacing: 8

    Item {
        height: title.implicitHeight
        width: parent.width

        Text {
            id: title

            color: Style.text
            font: Style.fonts.body
            text: root.name
            textFormat: Text.PlainText
        }

        Text {
            anchors.right: parent.right
            color: Style.secondaryText
            font: Style.fonts.body
            objectName: "number"
            text: root.value
            textFormat: Text.PlainText
        }
    }

    StepSlider {
        from: root.from
        objectName: "slider"
        to: root.to
        value: root.value
        width: parent.width

        Accessible.name: root.name

        onEndChosen: end => root.chosen(end)
        // Also when a screen reader sets it, which `moved` does not tell. But not when the slider
        // itself cannot show what it was given: the ends are no rule for the settings.
        onValueChanged: {
            if (value !== Math.min(Math.max(root.value, from), to))
                root.chosen(Math.trunc(value));
        }
    }
}
