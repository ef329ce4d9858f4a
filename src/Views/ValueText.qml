// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel
import Morvane.Views

// The secret, large, on at most three lines, to be selected and copied in whole or in part. A secret
// that does not fit is drawn smaller, down to 0.65 of its size, and only then cut short.
FocusScope {
    id: root

    required property string text

    readonly property alias editor: editor
    readonly property alias selectedText: editor.selectedText
    readonly property font fullFont: PerceivedText.count(text) <= 38 ? Style.fonts.value : Style.fonts.longValue
    readonly property int fullSize: fullFont.pixelSize
    // Of a secret with more than one line: one of at most 38 characters never has three.
    readonly property int largestHeight: 3 * Math.ceil(longMetrics.lineSpacing)
    readonly property int smallestSize: Math.ceil(0.65 * fullSize)
    readonly property alias size: editor.font.pixelSize
    readonly property bool truncated: fitting.lineCount > 3

    function copy(): void {
        selection.copy();
    }

    function selectAll(): void {
        editor.selectAll();
    }

    activeFocusOnTab: true
    implicitHeight: Math.min(editor.contentHeight, 3 * Math.ceil(metrics.lineSpacing))

    FontMetrics {
        id: metrics

        font: editor.font
    }

    FontMetrics {
        id: longMetrics

        font: Style.fonts.longValue
    }

    // An editor does not fit its text into a place. This one does, never seen: with lines of the same
    // height at every size, in a place for three of them.
    Text {
        id: fitting

        font: root.fullFont
        fontSizeMode: Text.Fit
        height: 3 * lineHeight
        lineHeight: 2 * root.fullSize
        lineHeightMode: Text.FixedHeight
        minimumPixelSize: root.smallestSize
        text: root.text
        textFormat: Text.PlainText
        visible: false
        width: root.width
        wrapMode: Text.Wrap
    }

    TextEdit {
        id: editor

        anchors.fill: parent
        clip: root.truncated
        // Where the cut text stands, only the selection of the whole one is seen.
        color: root.truncated ? "transparent" : Style.text
        focus: true
        font: Style.fonts.resized(root.fullFont, fitting.fontInfo.pixelSize)
        horizontalAlignment: TextEdit.AlignHCenter
        objectName: "value"
        persistentSelection: true
        readOnly: true
        selectByKeyboard: true
        selectByMouse: true
        selectedTextColor: color
        selectionColor: Style.selection
        text: root.text
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap

        // Nothing can be typed, and a blinking cursor would wake the machine twice a second.
        cursorDelegate: Item {
        }

        Accessible.name: text
        Accessible.readOnly: true
        Accessible.role: Accessible.StaticText
    }

    SecretSelection {
        id: selection

        editor: editor
    }

    Text {
        anchors.fill: parent
        color: Style.text
        elide: Text.ElideRight
        font: editor.font
        horizontalAlignment: Text.AlignHCenter
        maximumLineCount: 3
        objectName: "cutValue"
        text: root.truncated ? root.text : ""
        textFormat: Text.PlainText
        visible: root.truncated
        wrapMode: Text.Wrap
    }

    FocusRing {
        anchors.margins: -8
        radius: 8
        shown: editor.activeFocus
    }
}
