// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
pragma Singleton
import QtQuick
import Morvane.Views.Controls

// The fonts, colours and dimensions of the user interface, in both colour schemes.
QtObject {
    readonly property Appearance appearance: Appearance {
    }
    readonly property bool dark: appearance.dark

    readonly property font titleFont: textFont(22, Font.Bold)
    readonly property font title2Font: textFont(17, Font.Bold)
    readonly property font headlineFont: textFont(13, Font.DemiBold)
    readonly property font bodyFont: textFont(13, Font.Normal)
    readonly property font calloutFont: textFont(12, Font.Normal)
    readonly property font ratingFont: textFont(12, Font.Medium)
    readonly property font captionFont: textFont(11, Font.Normal)
    readonly property font creditFont: textFont(11, Font.Medium)
    readonly property font valueFont: secretFont(28, Font.DemiBold)
    readonly property font longValueFont: secretFont(22, Font.DemiBold)
    readonly property font rowFont: secretFont(12, Font.Normal)

    readonly property real boxRadius: 12
    readonly property real menuRadius: 8
    readonly property real controlRadius: 6
    readonly property real rowRadius: 5
    readonly property real disabledOpacity: 0.4
    // The duration of an animation, in milliseconds.
    readonly property int transition: appearance.reducedMotion ? 0 : 120

    readonly property color window: dark ? "#323232" : "#ececec"
    readonly property color surface: dark ? "#262626" : "#fafafa"
    readonly property color box: dark ? "#303030" : "#f0f0f2"
    readonly property color menu: dark ? "#2e2e30" : "#ffffff"
    readonly property color scrim: dark ? "#80000000" : "#40000000"
    // The colour of each of the layers of a shadow.
    readonly property color shadow: dark ? "#0c000000" : "#06000000"
    readonly property color divider: dark ? "#4a4a4a" : "#d2d2d2"

    readonly property color text: dark ? "#f2f2f2" : "#1d1d1f"
    readonly property color secondaryText: dark ? "#b4b4b8" : "#56565b"
    readonly property color tertiaryText: dark ? "#a0a0a5" : "#6a6a6f"
    // The background of selected text. Selected text keeps its colour.
    readonly property color selection: dark ? "#2f5685" : "#b3d4ff"
    // Shades of red, orange, blue and green that have a contrast of at least 4.5:1 on `surface`.
    readonly property list<color> strengthColors: dark ? ["#ff6961", "#ff9f0a", "#5eb0ff", "#32d74b"] : ["#c9231a", "#c05200", "#0062cc", "#1a7a2e"]

    readonly property color accent: dark ? "#0a84ff" : "#007aff"
    // Darker than `accent`, for the contrast of `accentText`.
    readonly property color accentFill: dark ? "#0a6fe0" : "#0068e0"
    readonly property color accentFillHovered: dark ? "#0a66cf" : "#0061d1"
    readonly property color accentFillPressed: dark ? "#0a5cbb" : "#0057bd"
    readonly property color accentText: "#ffffff"

    // Has a contrast of at least 3:1 on `window`, `surface`, `track` and `segmentTrack`.
    readonly property color controlBorder: dark ? "#828287" : "#747479"
    readonly property color controlFill: dark ? "#454547" : "#ffffff"
    readonly property color controlHovered: dark ? "#4e4e51" : "#f5f5f7"
    readonly property color controlPressed: dark ? "#39393b" : "#e6e6e9"
    readonly property color flatHovered: dark ? "#3a3a3c" : "#e6e6ea"
    readonly property color flatPressed: dark ? "#454548" : "#d9d9de"
    readonly property color closeHovered: "#d70015"
    readonly property color closePressed: "#b30012"
    // Has a contrast of at least 3:1 on `window`.
    readonly property color groove: dark ? "#7e7e83" : "#848489"
    readonly property color track: dark ? "#4a4a4d" : "#e2e2e5"
    readonly property color trackHovered: dark ? "#505053" : "#dedee1"
    readonly property color knob: dark ? "#f2f2f4" : "#ffffff"
    readonly property color knobPressed: dark ? "#eaeaec" : "#f0f0f0"
    readonly property color segment: dark ? "#636366" : "#ffffff"
    readonly property color segmentTrack: dark ? "#29292b" : "#dededf"
    readonly property color segmentHovered: dark ? "#3a3a3c" : "#d0d0d5"

    // Converts a length at the default text size to the length at the user's text size.
    function scaled(pixels: real): int {
        return Math.round(pixels * appearance.textScale);
    }

    // Sets the properties that controls would inherit from the desktop's fonts for single kinds of
    // controls, because every additional font requires a search for a font file.
    function textFont(pixels: real, weight: int): font {
        return fontOfSize(appearance.font.family, scaled(pixels), weight);
    }

    function secretFont(pixels: real, weight: int): font {
        return fontOfSize("monospace", scaled(pixels), weight);
    }

    // The body font with `letterSpacing` pixels added to each character.
    function bodyFontWithLetterSpacing(letterSpacing: real): font {
        return Qt.font({
                "family": bodyFont.family,
                "hintingPreference": bodyFont.hintingPreference,
                "letterSpacing": letterSpacing,
                "pixelSize": bodyFont.pixelSize,
                "weight": bodyFont.weight
            });
    }

    // Uses `pixels` without scaling it.
    function fontOfSize(family: string, pixels: int, weight: int): font {
        return Qt.font({
                "family": family,
                "hintingPreference": appearance.font.hintingPreference,
                "pixelSize": pixels,
                "weight": weight
            });
    }
}
