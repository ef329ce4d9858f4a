// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A menu of commands, in the window.
T.Menu {
    id: root

    // Not on its button, which closes it by itself.
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: Math.max(Style.scaled(200), contentWidth + leftPadding + rightPadding)
    margins: 4
    padding: 5

    background: Rectangle {
        border.color: Style.divider
        color: Style.menu
        radius: 8
    }
    contentItem: ListView {
        currentIndex: root.currentIndex
        implicitHeight: contentHeight
        implicitWidth: {
            let widest = 0;
            for (let i = 0; i < root.count; ++i)
                widest = Math.max(widest, root.itemAt(i).implicitWidth);
            return widest;
        }
        interactive: false
        model: root.contentModel
    }
}
