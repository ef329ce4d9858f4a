// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A tool tip below its parent, inside the window.
T.ToolTip {
    id: control

    closePolicy: T.Popup.NoAutoClose
    delay: 700
    font: Theme.captionFont
    horizontalPadding: 8
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    margins: 4
    verticalPadding: 4
    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 6 : 0

    background: Box {
        borderColor: Theme.divider
        color: Theme.menu
        radius: Theme.rowRadius
    }
    contentItem: PlainText {
        font: control.font
        text: control.text
        width: Math.min(implicitWidth, Theme.scaled(360))
        wrapMode: Text.Wrap
    }
}
