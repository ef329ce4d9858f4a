// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views.Controls

// A title bar by which the pointer moves the window, with buttons that open the menu and minimise,
// maximise and close the window.
Item {
    id: root

    required property bool isMenuEnabled
    readonly property bool isMaximized: window.visibility === Window.Maximized || window.visibility === Window.FullScreen
    required property Window window

    // Emitted to open the menu below `button`, or to close the menu if it is open.
    signal menuToggled(Item button)

    implicitHeight: Theme.scaled(40)

    component TitleBarButton: Button {
        id: button

        property color highlightedIconColor: Theme.text

        flat: true
        implicitHeight: Theme.scaled(28)
        implicitWidth: Theme.scaled(32)
        toolTip: text

        contentItem: Item {
            Icon {
                anchors.centerIn: parent
                color: button.hovered || button.down ? button.highlightedIconColor : Theme.secondaryText
                height: width
                name: button.icon.name
                width: Theme.scaled(16)
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
            // Ends the press: the window manager grabs the pointer and may not report the release.
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

            enabled: root.isMenuEnabled
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
            highlightedIconColor: Theme.accentText
            hoveredFill: Theme.closeHovered
            icon.name: "window.close"
            objectName: "closeButton"
            pressedFill: Theme.closePressed
            text: "Schließen"

            onClicked: root.window.close()
        }
    }

    // Since Qt 6.8, a shortcut also matches while another window of the program has keyboard focus.
    Shortcut {
        enabled: root.window.activeFocusItem !== null
        sequence: "F10"

        onActivated: root.menuToggled(menuButton)
    }
}
