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
            anchors.horizontalCenter: parent.horizontalCenter
            bottomPadding: 14
            horizontalAlignment: Text.AlignHCenter
            objectName: "alertMessage"
            text: root.message
            // Two lines of nearly equal length if the message does not fit on one line.
            width: implicitWidth > root.availableWidth ? Math.min(root.availableWidth, 0.6 * implicitWidth) : root.availableWidth
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
