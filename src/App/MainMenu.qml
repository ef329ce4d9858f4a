// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views
import Morvane.Views.Controls

// The menu of the main window: the standard commands of an application, with their usual shortcuts.
Menu {
    id: root

    // Since Qt 6.8, a shortcut also matches while another window of the program has keyboard focus.
    readonly property bool areShortcutsEnabled: window.activeFocusItem !== null
    required property ContentView content
    required property Window window

    signal openWindow(string identifier)

    // A press on `parent`, the button that opened the menu, does not close the menu, because the
    // click would open the menu again.
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    title: "Menü"

    AboutCommand {
        onOpenWindow: identifier => root.openWindow(identifier)
    }

    MenuSeparator {
    }

    // ResultPanel handles the shortcuts of the next two items.
    MenuItem {
        isShortcutEnabled: false
        shortcut: "Ctrl+R"
        title: "Neu erzeugen"

        onActivated: root.content.model.generate()
    }

    MenuItem {
        isShortcutEnabled: false
        shortcut: "Ctrl+Shift+C"
        title: "Kopieren"

        onActivated: root.content.model.copyToClipboard()
    }

    MenuSeparator {
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+C"
        isAvailable: root.content.selectedText !== ""
        title: "Auswahl kopieren"

        onActivated: root.content.copySelection()
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+A"
        title: "Alles auswählen"

        onActivated: root.content.selectAll()
    }

    MenuSeparator {
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+M"
        title: "Fenster minimieren"

        onActivated: root.window.showMinimized()
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+W"
        title: "Fenster schließen"

        onActivated: root.window.close()
    }

    MenuSeparator {
    }

    MenuItem {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+Q"
        title: "Morvane beenden"

        onActivated: Qt.quit()
    }
}
