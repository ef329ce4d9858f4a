// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// The context menu of a text field. The text field itself handles the displayed shortcuts.
Menu {
    id: root

    required property TextInput field
    required property bool isUndoAvailable

    signal undone

    component EditItem: MenuItem {
        isShortcutEnabled: false
    }

    EditItem {
        isAvailable: root.isUndoAvailable
        shortcut: "Ctrl+Z"
        title: "Rückgängig"

        onActivated: root.undone()
    }

    MenuSeparator {
    }

    EditItem {
        isAvailable: root.field.selectedText !== ""
        shortcut: "Ctrl+X"
        title: "Ausschneiden"

        onActivated: root.field.cut()
    }

    EditItem {
        isAvailable: root.field.selectedText !== ""
        shortcut: "Ctrl+C"
        title: "Kopieren"

        onActivated: root.field.copy()
    }

    EditItem {
        isAvailable: root.field.canPaste
        shortcut: "Ctrl+V"
        title: "Einfügen"

        onActivated: root.field.paste()
    }

    MenuSeparator {
    }

    EditItem {
        isAvailable: root.field.length > 0
        shortcut: "Ctrl+A"
        title: "Alles auswählen"

        onActivated: root.field.selectAll()
    }
}
