// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick.Templates as T
import Morvane.Views

// The menu's way to the About window.
MenuCommand {
    id: root

    // Asks for the window of this identifier to be opened, or brought to the front if it is open.
    signal openWindow(string identifier)

    action: T.Action {
        text: "Über Morvane"

        onTriggered: root.openWindow("about")
    }
}
