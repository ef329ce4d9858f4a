// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views
import Morvane.Views.Controls

// The standard commands of the application, each with its usual shortcut.
Menu {
    id: root

    required property bool areShortcutsEnabled
    required property ContentView content
    required property Window window

    signal openWindow(string identifier)

    AboutCommand {
        onOpenWindow: identifier => root.openWindow(identifier)
    }

    MenuSeparator {
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+C"

        action: T.Action {
            enabled: root.content.selectedText !== ""
            text: "Kopieren"

            onTriggered: root.content.copySelection()
        }
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+A"

        action: T.Action {
            text: "Alles auswählen"

            onTriggered: root.content.selectAll()
        }
    }

    MenuSeparator {
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+M"

        action: T.Action {
            text: "Fenster minimieren"

            onTriggered: root.window.showMinimized()
        }
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+W"

        action: T.Action {
            text: "Fenster schließen"

            onTriggered: root.window.close()
        }
    }

    MenuSeparator {
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+Q"

        action: T.Action {
            text: "Morvane beenden"

            onTriggered: Qt.quit()
        }
    }
}
