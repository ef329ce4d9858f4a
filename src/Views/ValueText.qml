// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views
import Morvane.Views.Controls

// The displayed secret on at most three lines, as selectable text. A secret that does not fit is
// drawn smaller, down to 0.65 of its full size, and is elided if it does not fit at that size.
FocusScope {
    id: root

    required property bool isLong
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
        id: shortMetrics

        font: Theme.valueFont
    }

    // Finds the size at which the secret fits, because a TextEdit has no `fontSizeMode`. The fixed
    // line height limits the text to three lines at every size.
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
        // A Label shows the elided text, and the editor behind the Label shows only the selection.
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

        // The text is read-only, and a blinking cursor would wake the processor twice a second.
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
        objectName: "elidedValue"
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
