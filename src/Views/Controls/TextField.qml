// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T

// A single-line text field.
T.TextField {
    id: control

    color: Theme.text
    font: Theme.bodyFont
    leftPadding: 8
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: 160
    opacity: enabled ? 1 : Theme.disabledOpacity
    persistentSelection: true
    selectByMouse: true
    selectedTextColor: Theme.text
    selectionColor: Theme.selection
    verticalAlignment: TextInput.AlignVCenter
    rightPadding: 8
    topPadding: 5
    bottomPadding: 5

    background: Rectangle {
        border.color: control.activeFocus ? Theme.accent : control.hovered ? Theme.secondaryText : Theme.controlBorder
        border.width: control.activeFocus ? 2 : 1
        color: Theme.controlFill
        radius: Theme.controlRadius

        PlainText {
            color: Theme.secondaryText
            font: control.font
            leftPadding: control.leftPadding
            text: control.placeholderText
            topPadding: control.topPadding
            visible: control.length === 0
        }
    }

    Keys.forwardTo: [contextMenu]

    ContextMenuArea {
        id: contextMenu

        cursorRectangle: control.cursorRectangle
        menu: EditMenu {
            field: control
        }
    }
}
