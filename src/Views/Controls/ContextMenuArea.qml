// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

// Opens a menu over `parent`, a text: at the pointer on a press of the right button, and below the
// cursor on Shift+F10 or the menu key. The text forwards its keys: `Keys.forwardTo: [area]`.
MouseArea {
    id: root

    // The menu; null until the menu opens for the first time.
    property Menu builtMenu: null
    // The rectangle of the text cursor, in the coordinates of the area.
    required property rect cursorRectangle
    // A component of type `Menu`.
    required property Component menu

    acceptedButtons: Qt.RightButton
    anchors.fill: parent

    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Menu && !(event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier))
            return;
        event.accepted = true;
        openAt(cursorRectangle.left, cursorRectangle.bottom);
    }
    onPressed: mouse => {
        parent.forceActiveFocus(Qt.MouseFocusReason);
        openAt(mouse.x, mouse.y);
    }

    function openAt(x: real, y: real) {
        builtMenu = builtMenu ?? menu.createObject(root) as Menu;
        builtMenu.popup(root, x, y);
    }
}
