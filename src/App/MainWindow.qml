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

    // Whether the program, not the system, draws the title bar and the borders of the window.
    required property bool clientSideDecorations

    color: Theme.surface
    height: minimumHeight
    minimumHeight: content.minimumHeight
    minimumWidth: content.minimumWidth
    // For screen readers. Without a title, Qt also gives the window the name of the program.
    title: Application.displayName
    width: Math.max(860, minimumWidth)

    ContentView {
        id: content

        anchors.fill: parent
        focus: true
        topInset: root.clientSideDecorations ? 0 : 28
    }

    ClientSideDecorations {
        anchors.fill: parent
        content: content
        visible: root.clientSideDecorations
        window: root
        // While an alert is open, the decorations are above Qt's overlay for popups, whose z is
        // 1,000,001, because a modal popup blocks what is below the overlay.
        z: content.model.errorPresented ? 1000002 : 0

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

    // Opens the window `identifier`, or brings the window to the front if it is open.
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
