// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick

Window {
    height: 610
    visible: true
    width: 860

    Text {
        anchors.centerIn: parent
        text: "Morvane"
        textFormat: Text.PlainText
    }
}
