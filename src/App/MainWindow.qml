// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.App
import Morvane.Views

Window {
    id: root

    // Whether the system has no frame for a window without a title bar.
    required property bool clientSideDecorations

    color: Style.surface
    height: minimumHeight
    minimumHeight: content.minimumHeight
    minimumWidth: content.minimumWidth
    width: Math.max(860, minimumWidth)

    onActiveFocusItemChanged: {
        if (activeFocusItem instanceof TextInput)
            frame.field = activeFocusItem;
        else if (activeFocusItem instanceof TextEdit)
            frame.field = null;
    }

    WindowState {
        id: windowState

        window: root
    }

    ContentView {
        id: content

        anchors.fill: parent
        areShortcutsEnabled: windowState.focused
        focus: true
        topInset: root.clientSideDecorations ? 0 : 28
    }

    WindowFrame {
        id: frame

        anchors.fill: parent
        value: content.value
        visible: root.clientSideDecorations
        window: root
        windowState: windowState

        onOpenWindow: identifier => root.openWindow(identifier)
    }

    // Of the About window there is at most one, built afresh each time.
    Loader {
        id: about
    }

    Connections {
        function onClosing() {
            about.source = "";
        }

        target: about.item
    }

    // Opens the window of this identifier, or brings it to the front if it is open.
    function openWindow(identifier: string) {
        if (identifier !== "about")
            return;
        if (!about.item)
            about.setSource("AboutWindow.qml", {
                    "transientParent": root
                });
        const window = about.item as Window;
        window.show();
        window.raise();
        window.requestActivate();
    }
}
