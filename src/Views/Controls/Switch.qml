// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A switch at the right end of a line, with a label at the left end.
T.Switch {
    id: control

    font: Theme.bodyFont
    implicitHeight: Math.max(implicitContentHeight, implicitIndicatorHeight)
    implicitWidth: implicitContentWidth + spacing + implicitIndicatorWidth
    opacity: enabled ? 1 : Theme.disabledOpacity
    spacing: 6
    width: parent?.width ?? implicitWidth

    contentItem: PlainText {
        // The width that is missing for the text on one line. Letters that are up to 2.5 % of the font
        // size closer together save this width in fonts as wide as DejaVu Sans. Fonts round the
        // distance, which adds up to less than one pixel.
        readonly property real excess: Math.ceil(natural.advanceWidth) + 1 + rightPadding - control.width

        font: excess > 0 ? Theme.bodyFontWithLetterSpacing(-Math.min(excess / text.length, control.font.pixelSize / 40)) : control.font
        rightPadding: control.spacing + control.implicitIndicatorWidth
        text: control.text
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
    indicator: Box {
        anchors.right: control.right
        anchors.verticalCenter: control.verticalCenter
        borderColor: control.checked ? "transparent" : Theme.controlBorder
        color: control.checked ? Theme.accent : control.hovered ? Theme.trackHovered : Theme.track
        implicitHeight: Theme.scaled(18)
        implicitWidth: Theme.scaled(32)
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

        Box {
            borderColor: control.checked ? "transparent" : Theme.controlBorder
            color: control.down ? Theme.knobPressed : Theme.knob
            height: parent.height
            inset: Theme.scaled(2)
            objectName: "knob"
            radius: height / 2
            width: height
            x: control.visualPosition * (parent.width - width)

            Behavior on x  {
                enabled: !control.down

                NumberAnimation {
                    duration: Theme.transition
                    easing.type: Easing.OutCubic
                }
            }
        }
    }

    TextMetrics {
        id: natural

        font: control.font
        text: control.text
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
