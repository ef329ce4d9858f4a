// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import Morvane.Views.Controls

// The menu item that opens the About window.
MenuItem {
    id: root

    // The window of this identifier is to be opened, or brought to the front if it is open.
    signal openWindow(string identifier)

    title: "Über Morvane"

    onActivated: root.openWindow("about")
}
