// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// Remembers which item of a window has the keyboard focus, and gives the focus back to this item.
// When a Popup closes, Qt 6.4 gives the focus to no item.
QtObject {
    id: root

    property Item item: null
    property int reason: Qt.PopupFocusReason

    // Remembers the focused item in the window of `anyItem`.
    function remember(anyItem: Item) {
        root.item = anyItem.Window.activeFocusItem;
        // The reason determines whether the item draws a focus ring.
        root.reason = (root.item as T.Control)?.focusReason ?? Qt.PopupFocusReason;
    }

    // Does nothing if the item no longer exists.
    function giveBack() {
        if (!root.item)
            return;
        root.item.forceActiveFocus(root.reason);
        // Without this line, an inactive window would have an item with active focus.
        root.item.Window.contentItem.focus = root.item.Window.active;
        root.item = null;
    }
}
