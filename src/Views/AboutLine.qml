// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// A text in the middle of its column, on as many lines as it needs.
Text {
    color: Style.text
    font: Style.fonts.body
    horizontalAlignment: Text.AlignHCenter
    textFormat: Text.PlainText
    width: parent ? parent.width : implicitWidth
    wrapMode: Text.Wrap

    Accessible.name: text
    Accessible.role: Accessible.StaticText
}
