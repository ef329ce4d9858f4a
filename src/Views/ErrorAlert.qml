// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A modal alert with one button. Return, Space, Escape and the button close it.
T.Dialog {
    id: root

    required property string message

    // By the user: not when `visible` is withdrawn.
    signal dismissed

    anchors.centerIn: parent
    closePolicy: T.Popup.CloseOnEscape
    focus: true
    implicitHeight: contentHeight + topPadding + bottomPadding
    implicitWidth: 300
    modal: true
    padding: 20
    title: "Einstellung prüfen"

    onAccepted: root.dismissed()
    onRejected: root.dismissed()

    T.Overlay.modal: Rectangle {
        color: Style.scrim
    }
    background: Rectangle {
        border.color: Style.divider
        color: Style.surface
        radius: 12
    }
    contentItem: Column {
        spacing: 10

        Text {
            color: Style.text
            font: Style.fonts.headline
            horizontalAlignment: Text.AlignHCenter
            objectName: "alertTitle"
            text: root.title
            textFormat: Text.PlainText
            width: root.availableWidth
            wrapMode: Text.Wrap
        }

        Text {
            color: Style.text
            font: Style.fonts.body
            horizontalAlignment: Text.AlignHCenter
            objectName: "alertMessage"
            text: root.message
            textFormat: Text.PlainText
            width: root.availableWidth
            wrapMode: Text.Wrap

            Accessible.name: root.message
            Accessible.role: Accessible.StaticText
        }

        Item {
            height: 4
            width: 1
        }

        ProminentButton {
            focus: true
            objectName: "alertButton"
            text: "OK"
            width: root.availableWidth

            Keys.onEnterPressed: root.accept()
            Keys.onReturnPressed: root.accept()
            onClicked: root.accept()
        }
    }
}
