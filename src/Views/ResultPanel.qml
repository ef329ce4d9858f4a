// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.ViewModel

Rectangle {
    id: root

    required property GeneratorViewModel model

    color: Style.surface

    Text {
        anchors.centerIn: parent
        color: Style.text
        font.family: "monospace"
        font.pixelSize: Style.valueSize
        font.weight: Font.DemiBold
        fontSizeMode: Text.Fit
        height: Math.min(implicitHeight, parent.height - 60)
        horizontalAlignment: Text.AlignHCenter
        minimumPixelSize: 14
        objectName: "value"
        text: root.model.generated
        textFormat: Text.PlainText
        width: parent.width - 124
        wrapMode: Text.WrapAnywhere

        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }
}
