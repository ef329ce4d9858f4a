// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A row of segments, one per choice, of which one is selected. A choice by the user emits `chosen`;
// the component that binds `currentIndex` changes the index.
FocusScope {
    id: control

    required property list<string> choices
    required property int currentIndex
    required property string name

    signal chosen(int index)

    implicitHeight: Math.ceil(widest.implicitHeight / choices.length) + 10
    implicitWidth: choices.length * (Math.ceil(widest.implicitWidth) + 12) + 4
    opacity: enabled ? 1 : Theme.disabledOpacity

    Accessible.name: control.name
    Accessible.role: Accessible.Grouping

    // Measures the widest choice in the font of a selected segment.
    PlainText {
        id: widest

        font: Theme.headlineFont
        text: Array.from(control.choices).join("\n")
        visible: false
    }

    Box {
        anchors.fill: parent
        borderColor: Theme.controlBorder
        color: Theme.segmentTrack
        radius: Theme.controlRadius
    }

    Box {
        borderColor: Theme.controlBorder
        color: Theme.segment
        height: row.height
        radius: Theme.controlRadius
        width: row.width / control.choices.length
        x: row.x + control.currentIndex * width
        y: row.y

        Behavior on x  {
            // Not animated without keyboard focus, because the layout changes `x` as well.
            enabled: control.activeFocus

            NumberAnimation {
                duration: Theme.transition
                easing.type: Easing.OutCubic
            }
        }
    }

    Row {
        id: row

        anchors.fill: parent

        Repeater {
            id: segments

            model: control.choices

            T.RadioButton {
                id: segment

                required property int index
                required property string modelData

                autoExclusive: false
                checkable: false
                checked: control.currentIndex === index
                focus: checked
                focusPolicy: checked ? Qt.StrongFocus : Qt.ClickFocus
                font: checked ? Theme.headlineFont : Theme.bodyFont
                height: row.height
                text: modelData
                width: row.width / control.choices.length

                background: Box {
                    color: segment.hovered && !segment.checked ? Theme.segmentHovered : "transparent"
                    radius: Theme.controlRadius

                    FocusRing {
                        gap: 0
                        visible: segment.visualFocus
                    }
                }
                contentItem: PlainText {
                    font: segment.font
                    horizontalAlignment: Text.AlignHCenter
                    text: segment.text
                    verticalAlignment: Text.AlignVCenter
                }

                Accessible.checkable: true
                Accessible.checked: checked
                // Like a click, the actions of a screen reader take the keyboard focus.
                Accessible.onPressAction: control.choose(index, Qt.OtherFocusReason)
                Accessible.onToggleAction: control.choose(index, Qt.OtherFocusReason)

                Keys.onDownPressed: control.move(1)
                Keys.onLeftPressed: control.move(-1)
                Keys.onRightPressed: control.move(1)
                Keys.onUpPressed: control.move(-1)
                onClicked: control.chosen(index)
            }
        }
    }

    function move(step: int) {
        const index = control.currentIndex + step;
        if (index < 0 || index >= control.choices.length)
            return;
        control.choose(index, Qt.TabFocusReason);
    }

    function choose(index: int, reason: int) {
        control.chosen(index);
        if (control.Window.active)
            segments.itemAt(index).forceActiveFocus(reason);
    }
}
