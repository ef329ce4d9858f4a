// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
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

        TabularNumber {
            anchors.right: parent.right
            color: Theme.secondaryText
            number: root.value
            objectName: "number"
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
