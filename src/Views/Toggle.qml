// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A switch at the end of its line, with its label at the start.
T.Switch {
    id: root

    font.pixelSize: Style.bodySize
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    implicitWidth: implicitContentWidth + spacing + implicitIndicatorWidth
    spacing: 8

    contentItem: Text {
        color: Style.text
        font: root.font
        rightPadding: root.spacing + root.implicitIndicatorWidth
        text: root.text
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
    indicator: Rectangle {
        anchors.right: root.right
        anchors.verticalCenter: root.verticalCenter
        border.color: root.checked ? color : Style.controlBorder
        color: root.checked ? Style.accent : Style.controlTrack
        implicitHeight: 20
        implicitWidth: 36
        radius: height / 2

        Rectangle {
            anchors.fill: parent
            anchors.margins: -3
            border.color: Style.focusRing
            border.width: 2
            color: "transparent"
            radius: height / 2
            visible: root.visualFocus
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            border.color: Style.controlBorder
            color: root.down ? Style.knobPressed : Style.knob
            height: 16
            radius: 8
            width: 16
            x: 2 + root.visualPosition * (parent.width - width - 4)
        }
    }

    // Left to itself, Qt would set `checked` on behalf of a screen reader, past all bindings.
    function throwOver() {
        root.toggle();
        root.toggled();
    }

    Accessible.onPressAction: root.throwOver()
    Accessible.onToggleAction: root.throwOver()
}
