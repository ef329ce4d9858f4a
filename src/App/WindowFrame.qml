// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

// What the program draws of the window's frame where the system draws none.
Item {
    id: root

    readonly property alias menu: menu
    required property TextEdit value
    required property Window window

    TitleStrip {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        menu: menu
        window: root.window
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

    MainMenu {
        id: menu

        value: root.value
        window: root.window
    }
}
