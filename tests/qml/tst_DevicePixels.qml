// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Morvane.Testing
import Morvane.Views.Controls

// CTest runs this file at several display scales. The scales at which logical pixels do not lie on
// device pixels are 1.25 and 1.5.
TestCase {
    id: testCase

    function init() {
        system.setAppearance(false, true);
        for (const control of [button, highlighted, field, offSwitch])
            control.visible = false;
    }

    function cleanup() {
        system.setAppearance(false, false);
    }

    // The colours of the device pixels on the line through the middle of `item`, from 4 logical
    // pixels outside the item to its middle. `side` is "left", "right", "top" or "bottom".
    function colorsFrom(side: string, item: Item, image: QtObject): list<string> {
        const bounds = item.mapToItem(testCase, 0, 0, item.width, item.height);
        const middleX = Math.round((bounds.left + bounds.width / 2) * scale);
        const middleY = Math.round((bounds.top + bounds.height / 2) * scale);
        const outside = Math.round(4 * scale);
        let colors = [];
        switch (side) {
        case "left":
            for (let x = Math.round(bounds.left * scale) - outside; x < middleX; ++x)
                colors.push(String(image.pixel(x, middleY)));
            break;
        case "right":
            for (let x = Math.round(bounds.right * scale) + outside; x > middleX; --x)
                colors.push(String(image.pixel(x, middleY)));
            break;
        case "top":
            for (let y = Math.round(bounds.top * scale) - outside; y < middleY; ++y)
                colors.push(String(image.pixel(middleX, y)));
            break;
        case "bottom":
            for (let y = Math.round(bounds.bottom * scale) + outside; y > middleY; --y)
                colors.push(String(image.pixel(middleX, y)));
            break;
        }
        return colors;
    }

    // The number of device pixels between the ground and the fill on one side of `item`.
    function borderWidth(side: string, item: Item, fill: color, image: QtObject): int {
        const colors = Array.from(colorsFrom(side, item, image));
        const begin = colors.findIndex(color => color !== colors[0]);
        const end = colors.findIndex(color => color === String(fill));
        verify(begin > 0 && end > begin, side + " of " + item + ": " + colors);
        return end - begin;
    }

    // Antialiasing of curves that mirror each other may differ by rounding.
    function isSimilar(one: color, other: color): bool {
        return Math.abs(one.r - other.r) + Math.abs(one.g - other.g) + Math.abs(one.b - other.b) < 0.1;
    }

    function place(item: Item, offset: int) {
        item.x = 20 + offset;
        item.y = 20 + offset;
    }

    // At 1.25, the edges at these offsets lie at different fractions of a device pixel.
    function test_bordersHaveTheSameWidthOnAllSides_data() {
        let rows = [];
        for (const name of ["button", "field", "offSwitch"]) {
            for (const offset of [0, 1, 2, 3])
                rows.push({
                        "tag": name + " " + offset,
                        "item": findChild(testCase, name),
                        "offset": offset
                    });
        }
        return rows;
    }

    function test_bordersHaveTheSameWidthOnAllSides(data) {
        const control = data.item as Item;
        control.visible = true;
        place(control, data.offset);
        const image = grabImage(testCase);
        const drawn = control.drawn as Item; // qmllint disable property
        const fill = control.fillColor; // qmllint disable property
        // The ends of the switch are curved.
        const sides = control === offSwitch ? ["top", "bottom"] : ["left", "right", "top", "bottom"];
        for (const side of sides)
            compare(borderWidth(side, drawn, fill, image), Math.round(scale), side);
    }

    // A gap or an offset between the sides and the corners breaks the symmetry.
    function test_roundedControlsAreSymmetric_data() {
        let rows = [];
        for (const name of ["button", "field", "highlighted"]) {
            for (const offset of [0, 1, 2, 3])
                rows.push({
                        "tag": name + " " + offset,
                        "item": findChild(testCase, name),
                        "offset": offset
                    });
        }
        return rows;
    }

    function test_roundedControlsAreSymmetric(data) {
        const control = data.item as Item;
        control.visible = true;
        place(control, data.offset);
        const image = grabImage(testCase);
        const ground = String(Theme.window);
        // The drawing begins and ends at the first and the last pixel that is not the ground.
        const middleY = Math.round((control.y + control.height / 2) * scale);
        const middleX = Math.round((control.x + control.width / 2) * scale);
        let left = 0;
        while (String(image.pixel(left, middleY)) === ground)
            ++left;
        let right = left;
        while (String(image.pixel(right + 1, middleY)) !== ground)
            ++right;
        let top = 0;
        while (String(image.pixel(middleX, top)) === ground)
            ++top;
        let bottom = top;
        while (String(image.pixel(middleX, bottom + 1)) !== ground)
            ++bottom;
        compare([right - left + 1, bottom - top + 1], [Math.round(control.width * scale), Math.round(control.height * scale)]);
        const cornerSize = 12;
        for (let y = top; y < top + cornerSize; ++y) {
            for (let x = left; x < left + cornerSize; ++x) {
                const color = image.pixel(x, y);
                verify(isSimilar(color, image.pixel(left + right - x, y)), "at " + (x - left) + ", " + (y - top));
                verify(isSimilar(color, image.pixel(x, top + bottom - y)), "at " + (x - left) + ", " + (y - top));
            }
        }
    }

    function test_theKnobIsInTheMiddleOfTheTrack_data() {
        return Array.from([0, 1, 2, 3], offset => ({
                        "tag": String(offset),
                        "offset": offset
                    }));
    }

    function test_theKnobIsInTheMiddleOfTheTrack(data) {
        offSwitch.visible = true;
        place(offSwitch, data.offset);
        const image = grabImage(testCase);
        const knob = findChild(offSwitch, "knob") as Item;
        const bounds = knob.mapToItem(testCase, 0, 0, knob.width, knob.height);
        const x = Math.round((bounds.left + bounds.width / 2) * scale);
        const colors = [];
        for (let y = Math.round((offSwitch.y - 2) * scale); y < (offSwitch.y + offSwitch.height + 2) * scale; ++y)
            colors.push(String(image.pixel(x, y)));
        const isGround = Array.from(colors, color => isSimilar(Qt.color(color), Theme.window));
        const first = isGround.indexOf(false);
        const last = isGround.lastIndexOf(false);
        const isKnob = Array.from(colors, color => isSimilar(Qt.color(color), Theme.knob));
        const knobFirst = isKnob.indexOf(true);
        const knobLast = isKnob.lastIndexOf(true);
        verify(first >= 0 && knobFirst > first);
        compare(knobFirst - first, last - knobLast);
    }

    // The device pixels for each logical pixel.
    readonly property real scale: Screen.devicePixelRatio

    height: 300
    name: "DevicePixels"
    visible: true
    when: windowShown
    width: 400

    FakeSystem {
        id: system
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }

    Button {
        id: button
        readonly property Item drawn: background
        readonly property color fillColor: Theme.controlFill

        height: 31
        objectName: "button"
        visible: false
        width: 57
    }

    Button {
        id: highlighted
        height: 31
        highlighted: true
        objectName: "highlighted"
        visible: false
        width: 57
    }

    TextField {
        id: field
        readonly property Item drawn: background
        readonly property color fillColor: Theme.controlFill

        height: 27
        objectName: "field"
        value: ""
        visible: false
        width: 61
    }

    Switch {
        id: offSwitch

        readonly property Item drawn: indicator
        readonly property color fillColor: Theme.track

        objectName: "offSwitch"
        visible: false
        width: 60
    }
}
