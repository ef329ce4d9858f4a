// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A slider for whole numbers. The arrow keys change the value by 1.
T.Slider {
    id: control

    // Qt's accessibility support reads the range from properties with these names.
    readonly property real maximumValue: to
    readonly property real minimumValue: from

    // Home or End was pressed. The component that binds `value` changes the value to `end`.
    signal endRequested(real end)

    implicitHeight: 20
    implicitWidth: 160
    opacity: enabled ? 1 : Theme.disabledOpacity
    snapMode: T.Slider.SnapAlways
    stepSize: 1

    background: Rectangle {
        color: control.hovered ? Theme.trackHovered : Theme.track
        height: 4
        radius: height / 2
        width: control.availableWidth
        y: (control.height - height) / 2

        Rectangle {
            color: Theme.accent
            height: parent.height
            radius: parent.radius
            width: control.visualPosition * (control.availableWidth - control.handle.width) + control.handle.width / 2
        }
    }
    handle: Rectangle {
        border.color: Theme.controlBorder
        color: control.pressed ? Theme.knobPressed : Theme.knob
        implicitHeight: 18
        implicitWidth: 18
        radius: height / 2
        x: control.visualPosition * (control.availableWidth - width)
        y: (control.height - height) / 2

        FocusRing {
            gap: 3
            visible: control.visualFocus
        }
    }

    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Home && event.key !== Qt.Key_End)
            return;
        control.endRequested(event.key === Qt.Key_Home ? control.from : control.to);
        event.accepted = true;
    }
}
