// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T

// All choices side by side, one of them selected. Only the user changes the selection, by `chosen`:
// whatever `currentIndex` is bound to takes it from there.
FocusScope {
    id: root

    required property list<string> choices
    required property int currentIndex
    required property string name
    // Of the widest choice, in the weight in which it is selected.
    readonly property real segmentWidth: {
        // What the metrics' function returns follows their font, but no binding sees that.
        const font = metrics.font;
        return font ? Math.max(...root.choices.map(choice => Math.ceil(metrics.advanceWidth(choice)))) : 0;
    }

    signal chosen(int index)

    implicitHeight: Math.ceil(metrics.height) + 10
    implicitWidth: root.choices.length * (root.segmentWidth + 12) + 4
    opacity: enabled ? 1 : 0.4

    Accessible.name: root.name
    Accessible.role: Accessible.Grouping

    FontMetrics {
        id: metrics

        font: Style.fonts.headline
    }

    Rectangle {
        anchors.fill: parent
        color: Style.segmentTrack
        radius: 7
    }

    Rectangle {
        border.color: Style.controlBorder
        color: Style.segment
        height: row.height
        radius: 5
        width: row.width / root.choices.length
        x: row.x + root.currentIndex * width
        y: row.y

        Behavior on x  {
            // Only when the user chooses, not while the window is laid out.
            enabled: root.activeFocus

            NumberAnimation {
                duration: Style.transition
                easing.type: Easing.OutCubic
            }
        }
    }

    Row {
        id: row

        anchors.fill: parent
        anchors.margins: 2

        Repeater {
            id: segments

            model: root.choices

            T.RadioButton {
                id: segment

                required property int index
                required property string modelData

                autoExclusive: false
                checkable: false
                checked: root.currentIndex === index
                focus: checked
                focusPolicy: checked ? Qt.StrongFocus : Qt.ClickFocus
                font: checked ? Style.fonts.headline : Style.fonts.body
                height: row.height
                text: modelData
                width: row.width / root.choices.length

                background: Rectangle {
                    color: segment.hovered && !segment.checked ? Style.segmentHovered : "transparent"
                    radius: 5

                    FocusRing {
                        anchors.margins: 0
                        radius: 5
                        shown: segment.visualFocus
                    }
                }
                contentItem: Text {
                    color: Style.text
                    font: segment.font
                    horizontalAlignment: Text.AlignHCenter
                    text: segment.text
                    textFormat: Text.PlainText
                    verticalAlignment: Text.AlignVCenter
                }

                Accessible.checkable: true
                Accessible.checked: checked
                Accessible.onPressAction: root.chosen(index)
                Accessible.onToggleAction: root.chosen(index)

                Keys.onLeftPressed: root.move(-1)
                Keys.onRightPressed: root.move(1)
                onClicked: root.chosen(index)
            }
        }
    }

    function move(step: int) {
        const index = root.currentIndex + step;
        if (index < 0 || index >= root.choices.length)
            return;
        root.chosen(index);
        segments.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }
}
