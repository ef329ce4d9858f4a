// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

Window {
    id: root

    // Whether the system has no frame for a window without a title bar.
    required property bool drawsFrame

    color: Style.surface
    height: minimumHeight
    minimumHeight: content.minimumHeight
    minimumWidth: content.minimumWidth
    width: Math.max(860, minimumWidth)

    onActiveFocusItemChanged: {
        if (activeFocusItem instanceof TextInput)
            frame.field = activeFocusItem;
        else if (activeFocusItem instanceof TextEdit)
            frame.field = null;
    }

    ContentView {
        id: content

        anchors.fill: parent
        focus: true
        topInset: root.drawsFrame ? 0 : 28
    }

    WindowFrame {
        id: frame

        anchors.fill: parent
        value: content.value.editor
        visible: root.drawsFrame
        window: root
    }
}
