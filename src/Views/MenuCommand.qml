// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A line of a menu: what it does, and the keys that do the same.
T.MenuItem {
    id: root

    readonly property color foreground: highlighted ? Style.accentText : Style.text
    // Whether the shortcut triggers the action. The menu shows the shortcut in any case.
    property bool isShortcutEnabled: true
    // The names of keys on a German keyboard.
    readonly property string keys: shortcut.replace("Ctrl", "Strg").replace("Shift", "Umschalt")
    property string shortcut

    font: Style.fonts.body
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + 32 + keyNames.implicitWidth + leftPadding + rightPadding
    leftPadding: 10
    padding: 5
    rightPadding: 10
    width: parent ? parent.width : implicitWidth

    Accessible.onPressAction: {
        root.menu.dismiss();
        root.action.trigger();
    }

    background: Rectangle {
        color: root.highlighted ? Style.accentFill : "transparent"
        radius: 5
    }
    contentItem: Text {
        color: root.foreground
        font: root.font
        opacity: root.enabled ? 1 : 0.4
        text: root.text
        textFormat: Text.PlainText
    }

    Text {
        id: keyNames

        anchors.right: parent.right
        anchors.rightMargin: root.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        color: root.highlighted ? root.foreground : Style.secondaryText
        font: root.font
        opacity: root.enabled ? 1 : 0.4
        text: root.keys
        textFormat: Text.PlainText
    }

    Binding {
        property: "shortcut"
        target: root.action
        value: root.isShortcutEnabled ? root.shortcut : ""
    }
}
