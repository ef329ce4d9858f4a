// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views
import Morvane.Views.Controls

// The secret, large, on at most three lines, selectable in whole or in part. A secret that does not
// fit is drawn smaller, down to 0.65 of its size, and elided only below that.
FocusScope {
    id: root

    required property bool isLong
    required property string text

    readonly property alias editor: editor
    readonly property font fullFont: isLong ? Theme.longValueFont : Theme.valueFont
    // Only long secrets have three lines.
    readonly property int largestHeight: 3 * Math.ceil(longMetrics.lineSpacing)
    readonly property alias selectedText: editor.selectedText
    readonly property alias size: editor.font.pixelSize
    readonly property int smallestSize: Math.ceil(0.65 * fullFont.pixelSize)
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

        font: Theme.longValueFont
    }

    // Finds the size at which the secret fits, because a TextEdit has no `fontSizeMode`. The line
    // height is fixed, so that three lines fit at every size.
    PlainText {
        id: fitting

        font: root.fullFont
        fontSizeMode: Text.Fit
        height: 3 * lineHeight
        lineHeight: 2 * root.fullFont.pixelSize
        lineHeightMode: Text.FixedHeight
        minimumPixelSize: root.smallestSize
        text: root.text
        visible: false
        width: root.width
        wrapMode: Text.Wrap
    }

    TextEdit {
        id: editor

        anchors.fill: parent
        clip: root.truncated
        // Behind the elided text, only the selection is visible.
        color: root.truncated ? "transparent" : Theme.text
        focus: true
        font: Theme.fontOfSize(root.fullFont.family, fitting.fontInfo.pixelSize, root.fullFont.weight)
        horizontalAlignment: TextEdit.AlignHCenter
        objectName: "value"
        persistentSelection: true
        readOnly: true
        selectByKeyboard: true
        selectByMouse: true
        selectedTextColor: color
        selectionColor: Theme.selection
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

    PlainText {
        anchors.fill: parent
        elide: Text.ElideRight
        font: editor.font
        horizontalAlignment: Text.AlignHCenter
        maximumLineCount: 3
        objectName: "cutValue"
        text: root.truncated ? root.text : ""
        visible: root.truncated
        wrapMode: Text.Wrap
    }

    FocusRing {
        gap: 8
        radius: 8
        visible: editor.activeFocus
    }
}
