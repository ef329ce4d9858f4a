// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// Plain text in the body font. Screen readers read it unless `Accessible.ignored` is set.
Text {
    color: Theme.text
    font: Theme.bodyFont
    textFormat: Text.PlainText

    Accessible.name: text
    Accessible.role: Accessible.StaticText
}
