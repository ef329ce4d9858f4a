// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import Morvane.Views.Controls

// The menu item that opens the About window.
MenuItem {
    id: root

    // Emitted to open the window `identifier`, or to bring the window to the front if it is open.
    signal openWindow(string identifier)

    title: "Über Morvane"

    onActivated: root.openWindow("about")
}
