// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// The context menu of a text field. The text field itself handles the displayed shortcuts.
Menu {
    id: root

    required property TextInput field
    // Read when the menu opens, because Qt 6.4 does not report a selection that an undo restores.
    property bool hasSelection: false

    component EditItem: MenuItem {
        isShortcutEnabled: false
    }

    EditItem {
        isAvailable: root.field.canUndo
        shortcut: "Ctrl+Z"
        title: "Rückgängig"

        onActivated: root.field.undo()
    }

    MenuSeparator {
    }

    EditItem {
        isAvailable: root.hasSelection
        shortcut: "Ctrl+X"
        title: "Ausschneiden"

        onActivated: root.field.cut()
    }

    EditItem {
        isAvailable: root.hasSelection
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

    onAboutToShow: hasSelection = field.selectedText !== ""
}
