// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick.Templates as T
import Morvane.Views.Controls

// The menu item that opens the About window.
MenuItem {
    id: root

    // The window of this identifier is to be opened, or brought to the front if it is open.
    signal openWindow(string identifier)

    action: T.Action {
        text: "Über Morvane"

        onTriggered: root.openWindow("about")
    }
}
