// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQml.Models
import QtQuick
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

    signal openWindow(string identifier)

    WindowState {
        id: windowState

        window: root.window
    }

    TitleStrip {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        maximized: windowState.filling
        window: root.window

        onMenuToggled: button => {
            const menu = instantiator.object as MainMenu;
            if (menu)
                menu.toggle(button);
            else
                root.menuButton = button;
        }
    }

    ResizeBorder {
        anchors.fill: parent
        visible: windowState.windowed
    }

    Rectangle {
        anchors.fill: parent
        border.color: Style.divider
        color: "transparent"
        visible: windowState.windowed
    }

    // The first frame does without.
    Instantiator {
        id: instantiator

        asynchronous: true

        MainMenu {
            field: root.field
            parent: root
            value: root.value
            window: root.window

            onOpenWindow: identifier => root.openWindow(identifier)
        }

        onObjectAdded: (index, menu) => {
            if (root.menuButton)
                (menu as MainMenu).toggle(root.menuButton);
        }
    }
}
