// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

// What the program draws of the window's frame where the system draws none.
Item {
    id: root

    // The field that had the keyboard last, if it was not the value.
    property TextInput field
    required property TextEdit value
    required property Window window

    TitleStrip {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        window: root.window

        onMenuToggled: button => {
            const menu = loader.item as MainMenu;
            if (menu)
                menu.toggle(button);
        }
    }

    ResizeBorder {
        anchors.fill: parent
        visible: root.window.visibility === Window.Windowed
        window: root.window
    }

    Rectangle {
        anchors.fill: parent
        border.color: Style.divider
        color: "transparent"
        visible: root.window.visibility === Window.Windowed
    }

    // The first frame does without.
    Loader {
        id: loader

        asynchronous: true

        sourceComponent: MainMenu {
            field: root.field
            parent: root
            value: root.value
            window: root.window
        }
    }
}
