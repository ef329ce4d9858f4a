// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views

// The standard commands of the application, each with its usual key.
PopupMenu {
    id: root

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
        action: T.Action {
            enabled: root.selectedText !== ""
            shortcut: "Ctrl+C"
            text: "Kopieren"

            onTriggered: root.field ? root.field.copy() : root.value.copy()
        }
    }

    MenuCommand {
        action: T.Action {
            shortcut: "Ctrl+A"
            text: "Alles auswählen"

            onTriggered: root.field ? root.field.selectAll() : root.value.selectAll()
        }
    }

    MenuDivider {
    }

    MenuCommand {
        action: T.Action {
            shortcut: "Ctrl+M"
            text: "Fenster minimieren"

            onTriggered: root.window.showMinimized()
        }
    }

    MenuCommand {
        action: T.Action {
            shortcut: "Ctrl+W"
            text: "Fenster schließen"

            onTriggered: root.window.close()
        }
    }

    MenuDivider {
    }

    MenuCommand {
        action: T.Action {
            shortcut: "Ctrl+Q"
            text: "Morvane beenden"

            onTriggered: Qt.quit()
        }
    }
}
