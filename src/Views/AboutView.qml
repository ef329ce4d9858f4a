// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views.Controls

// The content of the About window: the name, version, privacy statement and maker of the program.
Box {
    color: Theme.window
    implicitHeight: Theme.scaled(390)
    implicitWidth: Theme.scaled(370)
    // When a dialog gets the keyboard focus, screen readers read its name and its longer labels.
    focus: true

    Accessible.name: program.text + " " + version.text
    Accessible.role: Accessible.Dialog

    component Line: Label {
        anchors.left: parent?.left
        anchors.right: parent?.right
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }

    Column {
        anchors.centerIn: parent
        objectName: "aboutColumn"
        spacing: Theme.scaled(14)
        width: parent.width - 2 * Theme.scaled(34)

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.text
            height: width
            name: "de.morvane.Morvane"
            objectName: "aboutIcon"
            width: Theme.scaled(96)
        }

        Line {
            id: program

            font: Theme.titleFont
            text: "Morvane"

            Accessible.role: Accessible.Heading
        }

        Line {
            id: version

            color: Theme.secondaryText
            text: "Version 1.1"
        }

        Line {
            font: Theme.headlineFont
            text: "Sichere Passwörter. Lokal geschmiedet."
        }

        Box {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.divider
            height: 1
            objectName: "aboutDivider"
            width: Theme.scaled(260)
        }

        Line {
            color: Theme.secondaryText
            font: Theme.captionFont
            text: "Keine Cloud, keine Konten, keine Passwortspeicherung."
        }

        Line {
            font: Theme.creditFont
            objectName: "aboutCredit"
            text: "Entwickelt von\nMorvane-Projekt – Morvane-Team"
        }

        Line {
            color: Theme.tertiaryText
            font: Theme.captionFont
            text: "© 2026 Morvane-Projekt"
        }
    }
}
