// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views.Controls

// Its empty part moves the window. Its buttons open the menu and minimise, maximise and close the
// window.
Item {
    id: root

    readonly property bool isMaximized: window.visibility === Window.Maximized || window.visibility === Window.FullScreen
    required property Window window

    // The menu of `button` is to be opened, or closed if it is open.
    signal menuToggled(Item button)

    implicitHeight: 40

    component TitleBarButton: Button {
        id: button

        property color highlightedIcon: Theme.text

        flat: true
        implicitHeight: 28
        implicitWidth: 32

        contentItem: Item {
            Icon {
                anchors.centerIn: parent
                color: button.hovered || button.down ? button.highlightedIcon : Theme.secondaryText
                height: width
                name: button.icon.name
                width: 16
            }
        }
    }

    function toggleMaximized() {
        if (root.isMaximized)
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
            // The window manager grabs the pointer and may not report the release of the button.
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

        TitleBarButton {
            id: menuButton

            focusPolicy: Qt.TabFocus
            icon.name: "menu"
            objectName: "menuButton"
            text: "Menü"

            onClicked: root.menuToggled(menuButton)
        }

        TitleBarButton {
            focusPolicy: Qt.NoFocus
            icon.name: "window.minimize"
            objectName: "minimizeButton"
            text: "Minimieren"

            onClicked: root.window.showMinimized()
        }

        TitleBarButton {
            focusPolicy: Qt.NoFocus
            icon.name: root.isMaximized ? "window.restore" : "window.maximize"
            objectName: "maximizeButton"
            text: root.isMaximized ? "Wiederherstellen" : "Maximieren"

            onClicked: root.toggleMaximized()
        }

        TitleBarButton {
            focusPolicy: Qt.NoFocus
            highlightedIcon: Theme.accentText
            hoveredFill: Theme.closeHovered
            icon.name: "window.close"
            objectName: "closeButton"
            pressedFill: Theme.closePressed
            text: "Schließen"

            onClicked: root.window.close()
        }
    }

    // Since Qt 6.8, a shortcut also matches while another window of the program has the focus.
    Shortcut {
        enabled: root.window.activeFocusItem !== null
        sequence: "F10"

        onActivated: root.menuToggled(menuButton)
    }
}
