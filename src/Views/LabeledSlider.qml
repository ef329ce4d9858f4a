// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Morvane.Views.Controls

// A slider for a whole number, below a line with the name and the value of the number.
Column {
    id: root

    required property real from
    required property string name
    required property real to
    required property real value

    signal chosen(int number)

    spacing: 8
    width: parent?.width ?? implicitWidth

    Item {
        height: title.implicitHeight
        width: parent.width

        PlainText {
            id: title

            text: root.name
        }

        // Tabular figures: each digit has the width of the widest digit. Since Qt 6.6, the font's own
        // tabular figures are used.
        Row {
            id: number

            readonly property font font: Qt.font({
                    "family": Theme.bodyFont.family,
                    "features": {
                        "tnum": 1
                    },
                    "hintingPreference": Theme.bodyFont.hintingPreference,
                    "pixelSize": Theme.bodyFont.pixelSize,
                    "weight": Theme.bodyFont.weight
                })
            readonly property string text: String(root.value)

            anchors.right: parent.right
            objectName: "number"

            PlainText {
                id: widestDigit

                font: number.font
                text: Array.from("0123456789").join("\n")
                visible: false
            }

            Repeater {
                model: number.text.length

                PlainText {
                    required property int index

                    color: Theme.secondaryText
                    font: number.font
                    horizontalAlignment: Text.AlignHCenter
                    text: number.text.charAt(index)
                    width: widestDigit.implicitWidth
                }
            }
        }
    }

    Slider {
        id: slider

        from: root.from
        objectName: "slider"
        to: root.to
        value: root.value
        width: parent.width

        Accessible.name: root.name

        onNumberRequested: number => root.chosen(number)
        // Not `onMoved`, because `moved` is not emitted when a screen reader sets the value. A
        // value that results from clamping `root.value` to the range is not a choice of the user.
        onValueChanged: {
            if (value === Math.min(Math.max(root.value, from), to))
                return;
            root.chosen(Math.trunc(value));
            // A screen reader can set a value between two numbers, also one that chooses the same
            // number again.
            slider.value = Qt.binding(() => root.value);
        }
    }
}
