// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Morvane.Views.Controls

// A push button. `highlighted` fills the button with the accent colour; `flat` hides the bezel.
T.Button {
    id: control

    property color fill: highlighted ? Theme.accentFill : flat ? "transparent" : Theme.controlFill
    property color hoveredFill: highlighted ? Theme.accentFillHovered : flat ? Theme.flatHovered : Theme.controlHovered
    property color pressedFill: highlighted ? Theme.accentFillPressed : flat ? Theme.flatPressed : Theme.controlPressed
    property real radius: Theme.controlRadius
    // The widest of the texts that the button shows in turn. The button's width fits this text.
    property string reservedText: text
    // Displayed while the pointer or the keyboard focus stays on the button; empty for no tool tip.
    property string toolTip: ""
    // Built when it is displayed for the first time.
    property T.ToolTip builtToolTip: null
    readonly property bool isToolTipWanted: toolTip !== "" && (hovered || visualFocus)

    font: Theme.bodyFont
    horizontalPadding: 16
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    opacity: enabled ? 1 : Theme.disabledOpacity
    verticalPadding: 7

    // Like a click, the action of a screen reader takes the keyboard focus.
    Accessible.onPressAction: {
        if (control.focusPolicy !== Qt.NoFocus && control.Window.active)
            control.forceActiveFocus(Qt.OtherFocusReason);
        control.clicked();
    }

    onIsToolTipWantedChanged: showToolTip(isToolTipWanted)
    onToolTipChanged: {
        if (builtToolTip?.visible)
            builtToolTip.text = toolTip;
    }
    onPressed: showToolTip(false)

    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Return && event.key !== Qt.Key_Enter)
            return;
        event.accepted = true;
        if (!event.isAutoRepeat)
            control.clicked();
    }

    function showToolTip(shown: bool) {
        if (shown && !builtToolTip)
            builtToolTip = Qt.createComponent(Qt.resolvedUrl("ToolTip.qml")).createObject(control) as T.ToolTip;
        if (builtToolTip) {
            // A hidden tool tip keeps no text, which can be a secret.
            builtToolTip.text = shown ? control.toolTip : "";
            builtToolTip.visible = shown;
        }
    }

    background: Box {
        borderColor: control.highlighted || control.flat ? "transparent" : Theme.controlBorder
        color: control.down ? control.pressedFill : control.hovered ? control.hoveredFill : control.fill
        radius: control.radius

        Behavior on color  {
            ColorAnimation {
                duration: Theme.transition
            }
        }

        FocusRing {
            gap: control.flat ? 0 : 4
            visible: control.visualFocus
        }
    }
    contentItem: IconLabel {
        color: control.highlighted ? Theme.accentText : Theme.text
        font: control.font
        icon: control.icon.name
        reservedText: control.reservedText
        text: control.text
    }
}
