// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQml.Models
import Morvane.App
import Morvane.Views
import Morvane.Views.Controls

Window {
    id: root

    // Whether the program draws the title bar and the edges of the window.
    required property bool clientSideDecorations
    // A window without the keyboard focus has no focus item, `active` is true for it all the same
    // while its About window has the focus. Since Qt 6.8, shortcuts match there as well.
    readonly property bool hasFocus: activeFocusItem !== null

    color: Theme.surface
    height: minimumHeight
    minimumHeight: content.minimumHeight
    minimumWidth: content.minimumWidth
    width: Math.max(860, minimumWidth)

    ContentView {
        id: content

        anchors.fill: parent
        areShortcutsEnabled: root.hasFocus
        focus: true
        topInset: root.clientSideDecorations ? 0 : 28
    }

    ClientSideDecorations {
        anchors.fill: parent
        areShortcutsEnabled: root.hasFocus
        content: content
        visible: root.clientSideDecorations
        window: root

        onOpenWindow: identifier => root.openWindow(identifier)
    }

    Instantiator {
        id: about

        active: false

        AboutWindow {
            transientParent: root

            onClosing: about.active = false
        }
    }

    // Opens the window of this identifier, or brings it to the front if it is open.
    function openWindow(identifier: string) {
        if (identifier !== "about")
            return;
        about.active = true;
        const window = about.object as Window;
        window.show();
        window.raise();
        window.requestActivate();
    }
}
