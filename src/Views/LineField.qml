// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A line of text to edit, in a rounded border.
T.TextField {
    id: root

    color: Style.text
    font: Style.fonts.body
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: 160
    opacity: enabled ? 1 : 0.4
    padding: 5
    leftPadding: 8
    rightPadding: 8
    selectByMouse: true
    persistentSelection: true
    selectedTextColor: Style.text
    selectionColor: Style.selection
    verticalAlignment: TextInput.AlignVCenter

    background: Rectangle {
        border.color: root.activeFocus ? Style.focusRing : root.hovered ? Style.secondaryText : Style.controlBorder
        border.width: root.activeFocus ? 2 : 1
        color: Style.controlFill
        radius: 6

        Text {
            color: Style.secondaryText
            font: root.font
            leftPadding: root.leftPadding
            text: root.placeholderText
            textFormat: Text.PlainText
            topPadding: root.topPadding
            visible: root.length === 0
        }
    }
}
