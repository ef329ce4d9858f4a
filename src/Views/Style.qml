// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma Singleton
import QtQuick
import Morvane.Views

// The look in one place: the fonts, the colours of both schemes, and how long transitions take.
QtObject {
    id: style

    readonly property Appearance appearance: Appearance {
    }
    readonly property bool dark: appearance.dark
    readonly property real textScale: appearance.textScale

    readonly property TextStyles fonts: TextStyles {
        scale: style.textScale
    }

    // In milliseconds.
    readonly property int transition: appearance.reducedMotion ? 0 : 120

    readonly property color window: dark ? "#323232" : "#ececec"
    readonly property color surface: dark ? "#262626" : "#fafafa"
    readonly property color divider: dark ? "#4a4a4a" : "#d2d2d2"
    readonly property color text: dark ? "#f2f2f2" : "#1d1d1f"
    readonly property color secondaryText: dark ? "#b4b4b8" : "#56565b"
    readonly property color tertiaryText: dark ? "#a0a0a5" : "#6a6a6f"

    readonly property color controlTrack: dark ? "#5a5a5d" : "#c8c8cc"
    readonly property color controlTrackHovered: dark ? "#666669" : "#bcbcc1"
    readonly property color controlBorder: dark ? "#1f1f1f" : "#b4b4b8"
    readonly property color controlFill: dark ? "#454547" : "#ffffff"
    readonly property color controlHovered: dark ? "#4e4e51" : "#f5f5f7"
    readonly property color controlPressed: dark ? "#39393b" : "#e6e6e9"
    readonly property color box: dark ? "#303030" : "#f0f0f2"
    readonly property color rowHovered: dark ? "#3a3a3c" : "#e6e6ea"
    readonly property color rowPressed: dark ? "#454548" : "#d9d9de"
    readonly property color segment: dark ? "#636366" : "#ffffff"
    readonly property color segmentTrack: dark ? "#29292b" : "#dadade"
    readonly property color segmentHovered: dark ? "#3a3a3c" : "#d0d0d5"
    readonly property color knob: dark ? "#e6e6e8" : "#ffffff"
    readonly property color knobPressed: dark ? "#cfcfd2" : "#f0f0f0"
    readonly property color menu: dark ? "#2e2e30" : "#ffffff"

    readonly property color accent: dark ? "#0a84ff" : "#007aff"
    // The accent with white text on it: darker than the accent itself, for the text's contrast.
    readonly property color accentFill: dark ? "#0a6fe0" : "#0068e0"
    readonly property color accentFillHovered: dark ? "#0a66cf" : "#0061d1"
    readonly property color accentFillPressed: dark ? "#0a5cbb" : "#0057bd"
    readonly property color accentText: "#ffffff"
    // Behind selected text, which keeps its colour.
    readonly property color selection: dark ? "#2f5685" : "#b3d4ff"
    readonly property color closeHovered: "#d70015"
    readonly property color closePressed: "#b30012"
    readonly property color scrim: dark ? "#80000000" : "#40000000"
    readonly property color focusRing: accent

    // The shades of red, orange, blue and green in which text is legible on the surface.
    readonly property list<color> strengthColors: dark ? ["#ff6961", "#ffb340", "#5eb0ff", "#32d74b"] : ["#c9231a", "#a35200", "#0062cc", "#1a7a2e"]

    function strengthColor(level: int): color {
        return strengthColors[level];
    }

    // What measures `pixels` at the default font size, at the user's.
    function scaled(pixels: real): int {
        return Math.round(pixels * textScale);
    }
}
