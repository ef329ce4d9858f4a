// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A slider for whole numbers. The component that binds `value` changes the value when keys or the
// wheel request a number.
T.Slider {
    id: control

    // Qt's accessibility support reads the range from properties with these names.
    readonly property real maximumValue: to
    readonly property real minimumValue: from

    // The change of the value by Page Up and Page Down.
    readonly property real pageStep: Math.max(2, Math.round((to - from) / 10))

    signal numberRequested(real number)

    implicitHeight: Theme.scaled(20)
    implicitWidth: 160
    opacity: enabled ? 1 : Theme.disabledOpacity
    snapMode: T.Slider.SnapAlways
    stepSize: 1

    background: Box {
        color: Theme.groove
        height: Theme.scaled(4)
        radius: height / 2
        width: control.availableWidth
        y: (control.height - height) / 2

        Box {
            color: Theme.accent
            height: parent.height
            radius: parent.radius
            width: control.visualPosition * (control.availableWidth - control.handle.width) + control.handle.width / 2
        }
    }
    handle: Box {
        borderColor: Theme.controlBorder
        color: control.pressed ? Theme.knobPressed : Theme.knob
        implicitHeight: Theme.scaled(18)
        implicitWidth: implicitHeight
        radius: height / 2
        x: control.visualPosition * (control.availableWidth - width)
        y: (control.height - height) / 2

        FocusRing {
            gap: 3
            visible: control.visualFocus
        }
    }

    Keys.onPressed: event => {
        const number = numberForKey(event.key);
        if (isNaN(number))
            return;
        request(number);
        event.accepted = true;
    }

    WheelHandler {
        // The part of a step by which the wheel has turned, in eighths of a degree.
        property real turned: 0

        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        enabled: control.activeFocus

        onWheel: event => {
            turned += event.angleDelta.y;
            const steps = Math.trunc(turned / 120);
            turned -= steps * 120;
            control.request(control.value + steps);
        }
    }

    // The value that the key requests; NaN for other keys. Qt handles Left and Right.
    function numberForKey(key: int): real {
        switch (key) {
        case Qt.Key_Home:
            return from;
        case Qt.Key_End:
            return to;
        case Qt.Key_Up:
            return value + 1;
        case Qt.Key_Down:
            return value - 1;
        case Qt.Key_PageUp:
            return value + pageStep;
        case Qt.Key_PageDown:
            return value - pageStep;
        }
        return NaN;
    }

    function request(number: real) {
        numberRequested(Math.min(Math.max(number, from), to));
    }
}
