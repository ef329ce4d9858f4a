// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A switch at the right end of a line, with a label at the left end.
T.Switch {
    id: control

    font: Theme.bodyFont
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    implicitWidth: implicitContentWidth + spacing + implicitIndicatorWidth
    opacity: enabled ? 1 : Theme.disabledOpacity
    spacing: 8
    width: parent?.width ?? implicitWidth

    contentItem: PlainText {
        font: control.font
        rightPadding: control.spacing + control.implicitIndicatorWidth
        text: control.text
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
    indicator: Rectangle {
        anchors.right: control.right
        anchors.verticalCenter: control.verticalCenter
        border.color: control.checked ? color : Theme.controlBorder
        color: control.checked ? Theme.accent : control.hovered ? Theme.trackHovered : Theme.track
        implicitHeight: 20
        implicitWidth: 36
        radius: height / 2

        Behavior on color  {
            ColorAnimation {
                duration: Theme.transition
            }
        }

        FocusRing {
            gap: 3
            visible: control.visualFocus
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            border.color: Theme.controlBorder
            color: control.down ? Theme.knobPressed : Theme.knob
            height: 16
            objectName: "knob"
            radius: height / 2
            width: height
            x: 2 + control.visualPosition * (parent.width - width - 4)

            Behavior on x  {
                enabled: !control.down

                NumberAnimation {
                    duration: Theme.transition
                    easing.type: Easing.OutCubic
                }
            }
        }
    }

    // Qt's default action for screen readers assigns `checked`, which breaks the property binding.
    // Like a click, the action takes the keyboard focus.
    function toggleByUser() {
        if (control.Window.active)
            control.forceActiveFocus(Qt.OtherFocusReason);
        control.toggle();
        control.toggled();
    }

    Accessible.onPressAction: control.toggleByUser()
    Accessible.onToggleAction: control.toggleByUser()
}
