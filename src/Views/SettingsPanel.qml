// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel

Rectangle {
    id: root

    required property GeneratorViewModel model

    color: Style.window

    GeneratorSettingsObserver {
        settings: root.model.settings

        onChanged: root.model.generate()
    }

    Text {
        anchors.left: parent.left
        anchors.margins: 24
        anchors.right: parent.right
        anchors.top: parent.top
        color: Style.text
        font.bold: true
        font.pixelSize: Style.title2Size
        text: "Morvane"
        textFormat: Text.PlainText

        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }

    Text {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: 24
        anchors.right: parent.right
        color: Style.secondaryText
        font.pixelSize: Style.captionSize
        text: "Alles bleibt auf diesem Mac. Es wird nichts gespeichert oder übertragen."
        textFormat: Text.PlainText
        wrapMode: Text.Wrap

        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }
}
