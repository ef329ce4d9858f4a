// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Morvane.Views.Controls

TestCase {
    id: testCase

    height: 400
    name: "MenuItem"
    visible: true
    when: windowShown
    width: 400

    function init() {
        command.isShortcutEnabled = true;
        command.isAvailable = true;
        triggered.clear();
    }

    // The visible text item below `item` that shows `text`, or null.
    function visibleText(item: Item, text: string): Text {
        if (item instanceof Text && item.visible && item.text === text)
            return item as Text;
        for (const child of Array.from(item.children)) {
            const found = visibleText(child, text);
            if (found)
                return found;
        }
        return null;
    }

    function test_theShortcutTriggersTheActionOfAClosedMenu() {
        keySequence("Ctrl+1");
        compare(triggered.count, 1);
    }

    function test_aDisabledShortcutTriggersNothingAndLooksTheSame() {
        menu.open();
        tryVerify(() => menu.opened);
        const keys = visibleText(menu.contentItem, "Strg+1");
        verify(keys);
        const opacity = keys.opacity;
        const width = command.implicitWidth;
        command.isShortcutEnabled = false;
        compare(keys.text, "Strg+1");
        compare(keys.opacity, opacity);
        compare(command.implicitWidth, width);
        verify(command.enabled);
        menu.close();
        tryVerify(() => !menu.visible);
        keySequence("Ctrl+1");
        compare(triggered.count, 0);
        command.isShortcutEnabled = true;
        keySequence("Ctrl+1");
        compare(triggered.count, 1);
    }

    function test_theShortcutOfADisabledActionTriggersNothing() {
        command.isAvailable = false;
        keySequence("Ctrl+1");
        compare(triggered.count, 0);
    }

    Menu {
        id: menu

        MenuItem {
            id: command

            shortcut: "Ctrl+1"
            title: "Befehl"
        }
    }

    SignalSpy {
        id: triggered

        signalName: "activated"
        target: command
    }
}
