// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A menu item: the text of its action, and the shortcut that triggers the same action.
T.MenuItem {
    id: control

    // Whether the shortcut triggers the action. The menu shows the shortcut in any case.
    property bool isShortcutEnabled: true
    property alias shortcut: shortcutName.sequence

    font: Theme.bodyFont
    horizontalPadding: 10
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + 32 + keys.implicitWidth + leftPadding + rightPadding
    verticalPadding: 5
    width: parent ? parent.width : implicitWidth

    Accessible.onPressAction: {
        control.menu.dismiss();
        control.action.trigger();
    }

    background: Rectangle {
        color: control.highlighted ? Theme.accentFill : "transparent"
        radius: Theme.rowRadius
    }
    contentItem: Label {
        color: control.highlighted ? Theme.accentText : Theme.text
        font: control.font
        opacity: control.enabled ? 1 : Theme.disabledOpacity
        text: control.text

        Accessible.ignored: true
    }

    Label {
        id: keys

        anchors.right: parent.right
        anchors.rightMargin: control.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        color: control.highlighted ? Theme.accentText : Theme.secondaryText
        font: control.font
        opacity: control.enabled ? 1 : Theme.disabledOpacity
        text: shortcutName.nativeText

        Accessible.ignored: true
    }

    // Only names the keys. It would not match while the menu is closed; the action's shortcut does.
    Shortcut {
        id: shortcutName

        enabled: false
    }

    Binding {
        property: "shortcut"
        target: control.action
        value: control.isShortcutEnabled ? control.shortcut : ""
    }
}
