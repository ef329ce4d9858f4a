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
            font: Style.fonts.title
            text: "Morvane"

            Accessible.role: Accessible.Heading
        }

        AboutLine {
            color: Style.secondaryText
            text: "Version 1.1"
        }

        AboutLine {
            font: Style.fonts.headline
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
            font: Style.fonts.caption
            text: "Keine Cloud, keine Konten, keine Passwortspeicherung."
        }

        AboutLine {
            font: Style.fonts.credit
            objectName: "aboutCredit"
            text: "Entwickelt von\nMorvane-Projekt – Morvane-Team"
        }

        AboutLine {
            color: Style.tertiaryText
            font: Style.fonts.caption2
            text: "© 2026 Morvane-Projekt"
        }
    }
}
