// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A menu inside the window. The first letter of an item selects the item.
T.Menu {
    id: control

    readonly property FocusReturn focusReturn: FocusReturn {
    }
    // Whether the pointer has moved since the menu opened. A resting pointer selects no item.
    property bool isPointerMoved: false
    // Where the pointer rests over the open menu; negative coordinates while this is unknown.
    property point restingPointer: Qt.point(-1, -1)

    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: Math.max(Theme.scaled(200), contentWidth + leftPadding + rightPadding)
    margins: 4
    padding: 5

    background: Box {
        borderColor: Theme.divider
        color: Theme.menu
        radius: Theme.menuRadius

        Shadow {
        }
    }
    contentItem: ListView {
        currentIndex: control.currentIndex
        focus: true
        implicitHeight: contentHeight
        implicitWidth: {
            let widest = 0;
            for (let i = 0; i < control.count; ++i)
                widest = Math.max(widest, control.itemAt(i).implicitWidth);
            return widest;
        }
        interactive: false
        model: control.contentModel

        Accessible.name: control.title
        Accessible.role: Accessible.PopupMenu

        Keys.onPressed: event => event.accepted = control.handleKey(event.key, event.text)

        HoverHandler {
            onPointChanged: control.followPointer(point.scenePosition)
        }
    }

    // Reports the position of the pointer over the menu. The first position after the menu opened is
    // the position where the pointer rests.
    function followPointer(position: point) {
        isPointerMoved = isPointerMoved || restingPointer.x >= 0 && position !== restingPointer;
        restingPointer = position;
    }

    // Selects the first item that `accepts` accepts, of the items from `start` in steps of `step`,
    // with wrap-around.
    function selectItem(start: int, step: int, accepts: var) {
        for (let i = 0; i < count; ++i) {
            const index = (start + i * step + count * count) % count;
            const item = itemAt(index) as T.MenuItem;
            if (item?.enabled && accepts(item)) {
                currentIndex = index;
                item.forceActiveFocus(Qt.TabFocusReason);
                return;
            }
        }
    }

    // Whether the menu uses the key.
    function handleKey(key: int, text: string): bool {
        const any = () => true;
        const startsWithText = item => item.text.toLowerCase().startsWith(text.toLowerCase());
        switch (key) {
        case Qt.Key_Down:
            selectItem(currentIndex + 1, 1, any);
            return true;
        case Qt.Key_Up:
            selectItem(currentIndex < 0 ? count - 1 : currentIndex - 1, -1, any);
            return true;
        case Qt.Key_Home:
            selectItem(0, 1, any);
            return true;
        case Qt.Key_End:
            selectItem(count - 1, -1, any);
            return true;
        case Qt.Key_F10:
            close();
            return true;
        }
        const isLetter = text.toLowerCase() !== text.toUpperCase();
        if (!isLetter)
            return false;
        selectItem(currentIndex + 1, 1, startsWithText);
        return true;
    }

    onAboutToShow: {
        focusReturn.remember(parent);
        isPointerMoved = false;
        restingPointer = Qt.point(-1, -1);
    }
    onClosed: focusReturn.giveBack()
}
