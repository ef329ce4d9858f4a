// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQml.Models
import Morvane.App
import Morvane.Views
import Morvane.Views.Controls

// The title bar, the menu, the outline and the resize border that the program draws itself.
Item {
    id: root

    required property ContentView content
    required property Window window

    signal openWindow(string identifier)

    TitleBar {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        // An alert is modal, but does not keep the user from moving or closing the window.
        isMenuEnabled: !root.content.model.errorPresented
        window: root.window

        onMenuToggled: button => root.toggleMenu(button)
    }

    ResizeBorder {
        anchors.fill: parent
        visible: root.window.visibility === Window.Windowed
        window: root.window
    }

    Box {
        anchors.fill: parent
        borderColor: Theme.divider
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

    // The first frame does not show the menu, and comes 2 % earlier without it (measured with
    // tests/bench/window_bench.py --starts-only).
    Connections {
        function onFrameSwapped() {
            menu.active = true;
        }

        target: root.window
    }

    // Closes the open menu, or opens the menu below `button` with aligned right edges.
    function toggleMenu(button: Item) {
        menu.active = true;
        const mainMenu = menu.object as Menu;
        if (mainMenu.visible)
            mainMenu.close();
        else
            mainMenu.popup(button, button.width - mainMenu.width, button.height + 4);
    }
}
