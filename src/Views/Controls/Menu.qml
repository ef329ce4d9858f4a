// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A menu inside the window.
T.Menu {
    id: control

    readonly property FocusReturn focusReturn: FocusReturn {
    }

    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
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

    onAboutToShow: focusReturn.remember(parent)
    onClosed: focusReturn.giveBack()
}
