// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.App
import Morvane.Views

// What the program draws of the window's frame where the system draws none.
Item {
    id: root

    // The field that had the keyboard last, if it was not the value.
    property TextInput field
    // The button that asked for the menu before it was built.
    property Item menuButton
    required property ValueText value
    required property Window window
    required property WindowState windowState

    signal openWindow(string identifier)

    TitleBar {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        areShortcutsEnabled: root.windowState.focused
        maximized: root.windowState.filling
        window: root.window

        onMenuToggled: button => {
            if (menu.item)
                root.toggleMenu(button);
            else
                root.menuButton = button;
        }
    }

    ResizeBorder {
        anchors.fill: parent
        visible: root.windowState.windowed
    }

    Rectangle {
        anchors.fill: parent
        border.color: Style.divider
        color: "transparent"
        visible: root.windowState.windowed
    }

    // Nobody waits for the menu, and the first frame shall not either.
    Loader {
        id: menu

        asynchronous: true

        onLoaded: {
            if (root.menuButton)
                root.toggleMenu(root.menuButton);
        }
    }

    Connections {
        function onFrameSwapped() {
            enabled = false;
            menu.setSource("MainMenu.qml", {
                    "areShortcutsEnabled": Qt.binding(() => root.windowState.focused),
                    "field": Qt.binding(() => root.field),
                    "parent": root,
                    "value": root.value,
                    "window": root.window
                });
        }

        target: root.window
    }

    Connections {
        function onOpenWindow(identifier: string) {
            root.openWindow(identifier);
        }

        target: menu.item
    }

    // Shows the menu with its right end below that of `button`, or hides it.
    function toggleMenu(button: Item) {
        const shown = menu.item as T.Menu;
        if (shown.visible)
            shown.close();
        else
            shown.popup(button, button.width - shown.width, button.height + 4);
    }
}
