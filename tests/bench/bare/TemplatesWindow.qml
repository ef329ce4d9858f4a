// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// The minimum that the program's design needs: an invisible button, which loads the control
// templates, and a text in each font of the program's first frame.
Window {
    height: 610
    visible: true
    width: 860

    T.Button {
    }

    Text {
        font.pixelSize: 11
        text: "Morvane"
        textFormat: Text.PlainText
        y: 0
    }

    Text {
        font.pixelSize: 12
        font.weight: Font.Medium
        text: "Morvane"
        textFormat: Text.PlainText
        y: 22
    }

    Text {
        font.pixelSize: 13
        text: "Morvane"
        textFormat: Text.PlainText
        y: 46
    }

    Text {
        font.pixelSize: 13
        font.weight: Font.DemiBold
        text: "Morvane"
        textFormat: Text.PlainText
        y: 72
    }

    Text {
        font.pixelSize: 17
        font.weight: Font.Bold
        text: "Morvane"
        textFormat: Text.PlainText
        y: 98
    }

    Text {
        font.family: "monospace"
        font.pixelSize: 12
        text: "Morvane"
        textFormat: Text.PlainText
        y: 132
    }

    Text {
        font.family: "monospace"
        font.pixelSize: 28
        font.weight: Font.DemiBold
        text: "Morvane"
        textFormat: Text.PlainText
        y: 156
    }
}
