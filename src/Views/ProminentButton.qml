// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// The button that a person most likely wants, filled with the accent colour.
LabelButton {
    fill: Style.accentFill
    fillHovered: Style.accentFillHovered
    fillPressed: Style.accentFillPressed
    foreground: Style.accentText
    outline: "transparent"
}
