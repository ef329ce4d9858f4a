// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views

// What the program is, what it promises, and whose it is.
Rectangle {
    id: root

    color: Style.window
    implicitHeight: Style.scaled(390)
    implicitWidth: Style.scaled(370)

    Column {
        anchors.centerIn: parent
        objectName: "aboutColumn"
        spacing: 14
        width: parent.width - 2 * 34

        ApplicationIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            height: 96
            objectName: "aboutIcon"
            width: 96
        }

        AboutLine {
            font.bold: true
            font.pixelSize: Style.titleSize
            text: "Morvane"

            Accessible.role: Accessible.Heading
        }

        AboutLine {
            color: Style.secondaryText
            text: "Version 1.1"
        }

        AboutLine {
            font.pixelSize: Style.headlineSize
            font.weight: Font.DemiBold
            text: "Sichere Passwörter. Lokal geschmiedet."
        }

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Style.divider
            height: 1
            objectName: "aboutDivider"
            width: Style.scaled(260)
        }

        AboutLine {
            color: Style.secondaryText
            font.pixelSize: Style.captionSize
            text: "Keine Cloud, keine Konten, keine Passwortspeicherung."
        }

        AboutLine {
            font.pixelSize: Style.captionSize
            font.weight: Font.Medium
            objectName: "aboutCredit"
            text: "Entwickelt von\nMorvane-Projekt – Morvane-Team"
        }

        AboutLine {
            color: Style.tertiaryText
            font.pixelSize: Style.caption2Size
            text: "© 2026 Morvane-Projekt"
        }
    }
}
