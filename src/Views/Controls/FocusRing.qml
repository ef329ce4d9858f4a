// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// Marks keyboard focus by a ring with rounded corners around `parent`.
Rectangle {
    property real gap: 4

    anchors.fill: parent
    anchors.margins: -gap
    border.color: Theme.accent
    border.width: 2
    color: "transparent"
    radius: ((parent as Rectangle)?.radius ?? 0) + gap
}
