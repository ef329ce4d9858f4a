// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma Singleton
import QtQuick

// The look in one place: text sizes in pixels at the default font size, and colours of both schemes.
QtObject {
    id: style

    readonly property SystemPalette palette: SystemPalette {
    }
    readonly property bool dark: palette.window.hslLightness < 0.5

    readonly property int title2Size: 17
    readonly property int headlineSize: 13
    readonly property int bodySize: 13
    readonly property int calloutSize: 12
    readonly property int captionSize: 11

    readonly property int longValueSize: 22
    readonly property int valueSize: 28

    readonly property color window: dark ? "#323232" : "#ececec"
    readonly property color surface: dark ? "#262626" : "#fafafa"
    readonly property color divider: dark ? "#4a4a4a" : "#d2d2d2"
    readonly property color text: dark ? "#f2f2f2" : "#1d1d1f"
    readonly property color secondaryText: dark ? "#b4b4b8" : "#5a5a5f"

    readonly property color controlTrack: dark ? "#5a5a5d" : "#c8c8cc"
    readonly property color controlBorder: dark ? "#1f1f1f" : "#b4b4b8"
    readonly property color controlFill: dark ? "#454547" : "#ffffff"
    readonly property color controlPressed: dark ? "#39393b" : "#ececec"
    readonly property color box: dark ? "#303030" : "#f0f0f2"
    readonly property color rowHighlight: dark ? "#3d3d40" : "#e2e2e6"
    readonly property color segment: dark ? "#636366" : "#ffffff"
    readonly property color segmentTrack: dark ? "#29292b" : "#dadade"
    readonly property color knob: dark ? "#e6e6e8" : "#ffffff"
    readonly property color knobPressed: dark ? "#cfcfd2" : "#f0f0f0"

    readonly property color accent: dark ? "#0a84ff" : "#007aff"
    // The accent with white text on it: darker than the accent itself, for the text's contrast.
    readonly property color accentFill: dark ? "#0a6fe0" : "#0068e0"
    readonly property color accentFillPressed: dark ? "#0a5cbb" : "#0057bd"
    readonly property color accentText: "#ffffff"
    readonly property color scrim: dark ? "#80000000" : "#40000000"
    readonly property color focusRing: accent

    // The shades of red, orange, blue and green in which text is legible on the surface.
    readonly property list<color> strengthColors: dark ? ["#ff6961", "#ffb340", "#5eb0ff", "#32d74b"] : ["#c9231a", "#a35200", "#0062cc", "#1a7a2e"]

    function strengthColor(level: int): color {
        return strengthColors[level];
    }
}
