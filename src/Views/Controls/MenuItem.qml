// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A menu item with a shortcut that also works while the menu is closed.
T.MenuItem {
    id: control

    property alias isAvailable: command.enabled
    // Whether the shortcut works. The menu item displays the shortcut in either case.
    property bool isShortcutEnabled: true
    property alias shortcut: shortcutName.sequence
    property alias title: command.text

    // The item was chosen, or its shortcut was pressed.
    signal activated

    font: Theme.bodyFont
    horizontalPadding: 10
    hoverEnabled: (menu as Menu)?.isPointerMoved ?? true
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + 32 + keys.implicitWidth + leftPadding + rightPadding
    verticalPadding: 5
    width: parent ? parent.width : implicitWidth

    action: T.Action {
        id: command

        shortcut: control.isShortcutEnabled ? control.shortcut : ""

        onTriggered: control.activated()
    }

    Accessible.onPressAction: {
        control.menu.dismiss();
        command.trigger();
    }

    background: Box {
        color: control.highlighted ? Theme.accentFill : "transparent"
        radius: Theme.rowRadius
    }
    contentItem: PlainText {
        color: control.highlighted ? Theme.accentText : Theme.text
        font: control.font
        opacity: control.enabled ? 1 : Theme.disabledOpacity
        text: control.text
    }

    PlainText {
        id: keys

        anchors.right: parent.right
        anchors.rightMargin: control.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        color: control.highlighted ? Theme.accentText : Theme.secondaryText
        font: control.font
        opacity: control.enabled ? 1 : Theme.disabledOpacity
        text: shortcutName.nativeText
    }

    // Only provides the displayed text, because a Shortcut does not match while the menu is closed.
    Shortcut {
        id: shortcutName

        enabled: false
    }
}
