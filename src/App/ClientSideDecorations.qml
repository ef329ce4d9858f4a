// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQml.Models
import Morvane.App
import Morvane.Views
import Morvane.Views.Controls

// The title bar, the menu, the outline and the resizable edges of a window that has none from the
// system.
Item {
    id: root

    required property ContentView content
    required property Window window

    signal openWindow(string identifier)

    TitleBar {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        window: root.window

        onMenuToggled: button => root.toggleMenu(button)
    }

    ResizeBorder {
        anchors.fill: parent
        visible: root.window.visibility === Window.Windowed
        window: root.window
    }

    Rectangle {
        anchors.fill: parent
        border.color: Theme.divider
        color: "transparent"
        visible: root.window.visibility === Window.Windowed
    }

    Instantiator {
        id: menu

        active: false

        MainMenu {
            content: root.content
            parent: root
            window: root.window

            onOpenWindow: identifier => root.openWindow(identifier)
        }
    }

    // The first frame does not show the menu, and comes earlier without it.
    Connections {
        function onFrameSwapped() {
            menu.active = true;
        }

        target: root.window
    }

    // Shows the menu with its right end below that of `button`, or hides it.
    function toggleMenu(button: Item) {
        menu.active = true;
        const shown = menu.object as Menu;
        if (shown.visible)
            shown.close();
        else
            shown.popup(button, button.width - shown.width, button.height + 4);
    }
}
