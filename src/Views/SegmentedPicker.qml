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

    signal chosen(int index)

    implicitHeight: 26
    implicitWidth: row.implicitWidth

    Accessible.name: root.name
    Accessible.role: Accessible.Grouping

    Rectangle {
        anchors.fill: parent
        color: Style.segmentTrack
        radius: 7
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
                font.pixelSize: Style.bodySize
                font.weight: checked ? Font.DemiBold : Font.Normal
                height: row.height
                text: modelData
                width: row.width / root.choices.length

                background: Rectangle {
                    border.color: segment.visualFocus ? Style.focusRing : Style.controlBorder
                    border.width: segment.visualFocus ? 2 : 1
                    color: segment.checked ? Style.segment : "transparent"
                    radius: 5
                    visible: segment.checked || segment.visualFocus
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
