// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views.Controls

// Marks keyboard focus by a ring with rounded corners around `parent`.
Box {
    property real gap: 4

    anchors.fill: parent
    borderColor: Theme.accent
    borderWidth: 2
    inset: -gap
    radius: ((parent as Box)?.radius ?? 0) + gap
}
