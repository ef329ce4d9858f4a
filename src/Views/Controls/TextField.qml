// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A single-line text field that shows `value`. An edit by the user emits `edited`; the component that
// binds `value` changes the value, possibly to another text, which the field then shows.
T.TextField {
    id: control

    readonly property bool isUndoAvailable: historyIndex > 0
    required property string value

    // The values before the first edit and after each edit, with the cursor positions. Qt's own undo
    // stops at an assignment to `text`.
    property var history: []
    property int historyIndex: 0

    signal edited(string text)

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
    text: value
    verticalAlignment: TextInput.AlignVCenter
    rightPadding: 8
    topPadding: 5
    bottomPadding: 5

    background: Box {
        borderColor: control.activeFocus ? Theme.accent : control.hovered ? Theme.secondaryText : Theme.controlBorder
        borderWidth: control.activeFocus ? 2 : 1
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
    Keys.onPressed: event => {
        const isUndo = event.matches(StandardKey.Undo);
        if (!isUndo && !event.matches(StandardKey.Redo))
            return;
        event.accepted = true;
        if (isUndo)
            undoEdit();
        else
            showEntry(historyIndex + 1);
    }
    onTextChanged: {
        if (text !== value)
            acceptEdit();
    }
    onValueChanged: text = value

    ClipboardIgnorer {
        input: control
    }

    ContextMenuArea {
        id: contextMenu

        cursorRectangle: control.cursorRectangle
        // By address, because a type that is named here is loaded before the first frame.
        menu: Qt.createComponent(Qt.resolvedUrl("EditMenu.qml"))
    }

    // `text` as a single line: tabs become blanks, and other control characters and line breaks are
    // removed.
    function singleLine(text: string): string {
        return text.replace(/\t/g, " ").replace(/[\x00-\x1f\x7f-\x9f\u2028\u2029]/g, "");
    }

    // Reports the user's edit and shows the resulting value. The cursor stays behind the text that
    // precedes it.
    function acceptEdit() {
        const before = control.value;
        const cursor = singleLine(text.slice(0, cursorPosition)).length;
        control.edited(singleLine(text));
        text = control.value;
        cursorPosition = Math.min(cursor, length);
        if (control.value === before)
            return;
        const earlier = history.length > 0 ? history.slice(0, historyIndex + 1) : [historyEntry(before, before.length)];
        historyIndex = earlier.length;
        history = earlier.concat([historyEntry(control.value, cursorPosition)]);
    }

    function historyEntry(value: string, cursor: int): var {
        return {
            "value": value,
            "cursor": cursor
        };
    }

    function undoEdit() {
        showEntry(historyIndex - 1);
    }

    // Shows the value at this index of the history, if there is one.
    function showEntry(index: int) {
        if (index < 0 || index >= history.length)
            return;
        historyIndex = index;
        control.edited(history[index].value);
        text = control.value;
        cursorPosition = Math.min(history[index].cursor, length);
    }
}
