// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// The context menu of a text field. The text field itself handles the displayed shortcuts.
Menu {
    id: root

    // The parent of the menu's ContextMenuArea.
    readonly property TextField field: parent?.parent as TextField

    title: "Bearbeiten"

    component EditItem: MenuItem {
        isShortcutEnabled: false
    }

    EditItem {
        isAvailable: root.field?.isUndoAvailable ?? false
        shortcut: "Ctrl+Z"
        title: "Rückgängig"

        onActivated: root.field.undoEdit()
    }

    MenuSeparator {
    }

    EditItem {
        isAvailable: (root.field?.selectedText ?? "") !== ""
        shortcut: "Ctrl+X"
        title: "Ausschneiden"

        onActivated: root.field.cut()
    }

    EditItem {
        isAvailable: (root.field?.selectedText ?? "") !== ""
        shortcut: "Ctrl+C"
        title: "Kopieren"

        onActivated: root.field.copy()
    }

    EditItem {
        shortcut: "Ctrl+V"
        title: "Einfügen"

        onActivated: root.field.paste()
    }

    MenuSeparator {
    }

    EditItem {
        isAvailable: root.field?.length > 0
        shortcut: "Ctrl+A"
        title: "Alles auswählen"

        onActivated: root.field.selectAll()
    }
}
