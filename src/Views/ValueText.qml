// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Morvane.ViewModel
import Morvane.Views
import Morvane.Views.Controls

// The displayed secret on at most three balanced lines, as selectable text. A secret that does not
// fit is drawn smaller, down to 0.65 of its full size, and is elided if it does not fit at that size.
FocusScope {
    id: root

    required property bool isLong
    // The settings determine how many lines the next secrets can need, and so the height.
    required property generatorSettings settings
    required property string text

    readonly property alias editor: editor
    readonly property font fullFont: isLong ? Theme.longValueFont : Theme.valueFont
    // The height of a long secret on three lines. A shorter secret on three lines is higher and takes
    // the additional space from the margins of the panel. The line height is derived from the font of
    // short secrets, because one more font in the first frame takes 6 ms with 2,000 font faces.
    readonly property int longSecretHeight: 3 * Math.ceil(shortMetrics.lineSpacing * Theme.longValueFont.pixelSize / Theme.valueFont.pixelSize)
    readonly property alias selectedText: editor.selectedText
    readonly property alias size: editor.font.pixelSize
    readonly property int smallestSize: Math.ceil(0.65 * fullFont.pixelSize)
    readonly property bool truncated: fittingSize === 0
    readonly property int fittingSize: layout.fittingSize(text, fullFont, smallestSize, width)

    function copy(): void {
        selection.copy();
    }

    function selectAll(): void {
        editor.selectAll();
    }

    activeFocusOnTab: true
    implicitHeight: Math.max(Math.ceil(layout.neededHeight(settings, Theme.valueFont, Theme.longValueFont, width)), truncated ? elided.height : editor.height)

    FontMetrics {
        id: shortMetrics

        font: Theme.valueFont
    }

    TextEdit {
        id: editor

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        clip: root.truncated
        // A Label shows the elided text, and the editor behind the Label shows only the selection.
        color: root.truncated ? "transparent" : Theme.text
        focus: true
        font: Theme.fontOfSize(root.fullFont.family, root.fittingSize || root.smallestSize, root.fullFont.weight)
        height: root.truncated ? elided.height : contentHeight
        objectName: "value"
        persistentSelection: true
        readOnly: true
        // Qt would put the selected text into the primary selection of X11 and Wayland.
        selectByKeyboard: false
        selectByMouse: false
        selectedTextColor: color
        selectionColor: Theme.selection
        text: root.text
        textFormat: TextEdit.PlainText

        // The text is read-only, and a blinking cursor would wake the processor twice a second.
        cursorDelegate: Item {
        }

        Keys.forwardTo: [contextMenu]

        Accessible.name: text
        Accessible.readOnly: true
        Accessible.role: Accessible.StaticText

        ContextMenuArea {
            id: contextMenu

            cursorRectangle: editor.cursorRectangle
            // Only displays the shortcuts, which the main menu handles.
            menu: Menu {
                title: "Wert"

                MenuItem {
                    isAvailable: editor.selectedText !== ""
                    isShortcutEnabled: false
                    shortcut: "Ctrl+C"
                    title: "Auswahl kopieren"

                    onActivated: root.copy()
                }

                MenuItem {
                    isShortcutEnabled: false
                    shortcut: "Ctrl+A"
                    title: "Alles auswählen"

                    onActivated: root.selectAll()
                }
            }
        }
    }

    SecretLayout {
        id: layout

        document: editor.textDocument
    }

    SecretSelection {
        id: selection

        editor: editor
    }

    MouseArea {
        property double doubleClickedAt: 0
        // Whether moving the pointer extends the selection by single characters.
        property bool isExtending: false

        anchors.fill: editor
        cursorShape: Qt.IBeamCursor

        onDoubleClicked: {
            doubleClickedAt = Date.now();
            isExtending = false;
            editor.selectWord();
        }
        onPositionChanged: mouse => {
            if (isExtending)
                editor.moveCursorSelection(editor.positionAt(mouse.x, mouse.y));
        }
        onPressed: mouse => {
            const isTripleClick = Date.now() - doubleClickedAt < Application.styleHints.mouseDoubleClickInterval;
            const position = editor.positionAt(mouse.x, mouse.y);
            editor.forceActiveFocus(Qt.MouseFocusReason);
            isExtending = !isTripleClick;
            if (isTripleClick)
                editor.selectAll();
            else if (mouse.modifiers & Qt.ShiftModifier)
                editor.moveCursorSelection(position);
            else
                editor.cursorPosition = position;
        }
    }

    PlainText {
        id: elided

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        font: editor.font
        horizontalAlignment: Text.AlignHCenter
        maximumLineCount: 3
        objectName: "elidedValue"
        text: root.truncated ? root.text : ""
        visible: root.truncated
        wrapMode: Text.WrapAnywhere
    }

    FocusOrigin {
        id: focusOrigin

        item: editor
    }

    FocusRing {
        gap: 8
        radius: 8
        visible: editor.activeFocus && focusOrigin.isKey
    }
}
