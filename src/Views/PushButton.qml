// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// A button for an action that is neither the default nor destructive.
LabelButton {
    fill: Style.controlFill
    fillHovered: Style.controlHovered
    fillPressed: Style.controlPressed
    foreground: Style.text
    outline: Style.controlBorder
}
