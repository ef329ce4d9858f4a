// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick

// A whole number in tabular figures: each digit has the width of the widest digit. Fonts with
// proportional figures draw them with their feature `tnum` (Qt 6.6 and later).
Row {
    id: root

    property color color: Theme.text
    property font font: Theme.bodyFont
    required property int number

    readonly property string text: String(number)

    readonly property font tabularFont: Qt.font({
            "family": font.family,
            "features": {
                "tnum": 1
            },
            "hintingPreference": font.hintingPreference,
            "pixelSize": font.pixelSize,
            "weight": font.weight
        })

    PlainText {
        id: widest

        font: root.tabularFont
        text: Array.from("0123456789").join("\n")
        visible: false
    }

    Repeater {
        model: root.text.length

        PlainText {
            required property int index

            color: root.color
            font: root.tabularFont
            horizontalAlignment: Text.AlignHCenter
            text: root.text.charAt(index)
            width: widest.implicitWidth
        }
    }
}
