// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// Text without markup in the body font. Screen readers do not read it; they read a `Label`.
Text {
    color: Theme.text
    font: Theme.bodyFont
    textFormat: Text.PlainText
}
