// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views

// The standard commands of the application, each with its usual key.
PopupMenu {
    id: root

    required property bool areShortcutsEnabled
    // The field that had the keyboard last; if none had, text is selected in and copied from the
    // value.
    required property TextInput field
    readonly property string selectedText: field ? field.selectedText : value.selectedText
    required property ValueText value
    required property Window window

    signal openWindow(string identifier)

    AboutCommand {
        onOpenWindow: identifier => root.openWindow(identifier)
    }

    MenuDivider {
    }

    MenuCommand {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+C"

        action: T.Action {
            enabled: root.selectedText !== ""
            text: "Kopieren"

            onTriggered: root.field ? root.field.copy() : root.value.copy()
        }
    }

    MenuCommand {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+A"

        action: T.Action {
            text: "Alles auswählen"

            onTriggered: root.field ? root.field.selectAll() : root.value.selectAll()
        }
    }

    MenuDivider {
    }

    MenuCommand {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+M"

        action: T.Action {
            text: "Fenster minimieren"

            onTriggered: root.window.showMinimized()
        }
    }

    MenuCommand {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+W"

        action: T.Action {
            text: "Fenster schließen"

            onTriggered: root.window.close()
        }
    }

    MenuDivider {
    }

    MenuCommand {
        isShortcutEnabled: root.areShortcutsEnabled
        shortcut: "Ctrl+Q"

        action: T.Action {
            text: "Morvane beenden"

            onTriggered: Qt.quit()
        }
    }
}
