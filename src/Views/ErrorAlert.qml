// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import Morvane.Views.Controls

// A modal alert with one button. Return, Space, Escape and the button close the alert.
Dialog {
    id: root

    required property string message

    // The user closed the alert.
    signal dismissed

    title: "Einstellung prüfen"

    onAccepted: root.dismissed()
    onRejected: root.dismissed()

    contentItem: Column {
        spacing: 10

        PlainText {
            font: Theme.headlineFont
            horizontalAlignment: Text.AlignHCenter
            objectName: "alertTitle"
            text: root.title
            width: root.availableWidth
            wrapMode: Text.Wrap
        }

        Label {
            bottomPadding: 14
            horizontalAlignment: Text.AlignHCenter
            objectName: "alertMessage"
            text: root.message
            width: root.availableWidth
            wrapMode: Text.Wrap
        }

        Button {
            focus: true
            highlighted: true
            objectName: "alertButton"
            text: "OK"
            width: root.availableWidth

            onClicked: root.accept()
        }
    }
}
