// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

// What is left of the title bar: by its empty part the window is moved, by its buttons closed,
// minimised and maximised, and beside them is the menu.
Item {
    id: root

    required property bool areShortcutsEnabled
    required property bool maximized
    required property Window window

    // Someone wants to see the menu of this button, or no longer.
    signal menuToggled(Item button)

    implicitHeight: 40

    function toggleMaximized() {
        if (root.maximized)
            root.window.showNormal();
        else
            root.window.showMaximized();
    }

    MouseArea {
        property point pressedAt

        anchors.fill: parent

        onDoubleClicked: root.toggleMaximized()
        onPositionChanged: mouse => {
            if (Math.hypot(mouse.x - pressedAt.x, mouse.y - pressedAt.y) < Application.styleHints.startDragDistance)
                return;
            root.window.startSystemMove();
            // From here on the pointer is the window manager's, which need not tell of its release.
            enabled = false;
            enabled = true;
        }
        onPressed: mouse => pressedAt = Qt.point(mouse.x, mouse.y)
    }

    Row {
        anchors.margins: 6
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: 2

        FrameButton {
            id: menuButton

            focusPolicy: Qt.TabFocus
            objectName: "menuButton"
            symbol: "menu"
            text: "Menü"

            onClicked: root.menuToggled(menuButton)
        }

        FrameButton {
            focusPolicy: Qt.NoFocus
            objectName: "minimizeButton"
            symbol: "window.minimize"
            text: "Minimieren"

            onClicked: root.window.showMinimized()
        }

        FrameButton {
            focusPolicy: Qt.NoFocus
            objectName: "maximizeButton"
            symbol: root.maximized ? "window.restore" : "window.maximize"
            text: root.maximized ? "Wiederherstellen" : "Maximieren"

            onClicked: root.toggleMaximized()
        }

        FrameButton {
            focusPolicy: Qt.NoFocus
            highlight: Style.closeHovered
            highlightedSymbol: Style.accentText
            objectName: "closeButton"
            pressedHighlight: Style.closePressed
            symbol: "window.close"
            text: "Schließen"

            onClicked: root.window.close()
        }
    }

    Shortcut {
        enabled: root.areShortcutsEnabled
        sequence: "F10"

        onActivated: root.menuToggled(menuButton)
    }
}
