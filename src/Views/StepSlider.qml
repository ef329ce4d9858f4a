// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// A slider over whole numbers. The arrow keys move it by one, Home and End to its ends.
T.Slider {
    id: root

    // The names by which Qt's accessibility looks for the ends.
    readonly property real maximumValue: to
    readonly property real minimumValue: from

    // A key asked for an end. Whatever `value` is bound to takes it from here.
    signal endChosen(real end)

    implicitHeight: 20
    implicitWidth: 160
    opacity: enabled ? 1 : 0.4
    snapMode: T.Slider.SnapAlways
    stepSize: 1

    background: Rectangle {
        color: root.hovered ? Style.controlTrackHovered : Style.controlTrack
        height: 4
        radius: 2
        width: root.availableWidth
        y: (root.height - height) / 2

        Rectangle {
            color: Style.accent
            height: parent.height
            radius: parent.radius
            width: root.visualPosition * (root.availableWidth - root.handle.width) + root.handle.width / 2
        }
    }
    handle: Rectangle {
        border.color: Style.controlBorder
        color: root.pressed ? Style.knobPressed : Style.knob
        implicitHeight: 18
        implicitWidth: 18
        radius: height / 2
        x: root.visualPosition * (root.availableWidth - width)
        y: (root.height - height) / 2

        FocusRing {
            anchors.margins: -3
            radius: height / 2
            shown: root.visualFocus
        }
    }

    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Home && event.key !== Qt.Key_End)
            return;
        root.endChosen(event.key === Qt.Key_Home ? root.from : root.to);
        event.accepted = true;
    }
}
