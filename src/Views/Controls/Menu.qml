// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A menu inside the window.
T.Menu {
    id: control

    // A press on `parent`, the button that opened the menu, does not close the menu, because the
    // click would open the menu again.
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: Math.max(Theme.scaled(200), contentWidth + leftPadding + rightPadding)
    margins: 4
    padding: 5

    background: Rectangle {
        border.color: Theme.divider
        color: Theme.menu
        radius: Theme.menuRadius
    }
    contentItem: ListView {
        currentIndex: control.currentIndex
        implicitHeight: contentHeight
        implicitWidth: {
            let widest = 0;
            for (let i = 0; i < control.count; ++i)
                widest = Math.max(widest, control.itemAt(i).implicitWidth);
            return widest;
        }
        interactive: false
        model: control.contentModel
    }
}
