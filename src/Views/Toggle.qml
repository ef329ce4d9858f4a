// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A switch at the end of its line, with its label at the start.
T.Switch {
    id: root

    font: Style.fonts.body
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    implicitWidth: implicitContentWidth + spacing + implicitIndicatorWidth
    opacity: enabled ? 1 : 0.4
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
        color: root.checked ? Style.accent : root.hovered ? Style.controlTrackHovered : Style.controlTrack
        implicitHeight: 20
        implicitWidth: 36
        radius: height / 2

        Behavior on color  {
            ColorAnimation {
                duration: Style.transition
            }
        }

        FocusRing {
            anchors.margins: -3
            radius: height / 2
            shown: root.visualFocus
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            border.color: Style.controlBorder
            color: root.down ? Style.knobPressed : Style.knob
            height: 16
            objectName: "knob"
            radius: 8
            width: 16
            x: 2 + root.visualPosition * (parent.width - width - 4)

            Behavior on x  {
                enabled: !root.down

                NumberAnimation {
                    duration: Style.transition
                    easing.type: Easing.OutCubic
                }
            }
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
