// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

Window {
    height: minimumHeight
    minimumHeight: 610
    minimumWidth: 760
    visible: true
    width: 860

    ContentView {
        anchors.fill: parent
        focus: true
    }
}
