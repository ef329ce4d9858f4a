// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import QtTest
import Morvane.Testing
import Morvane.Views
import Morvane.Views.Controls

TestCase {
    id: testCase

    property ContentView content: null

    function init() {
        content = contentComponent.createObject(testCase, {
                "width": 760,
                "height": 610
            }) as ContentView;
        verify(waitForRendering(content));
    }

    function cleanup() {
        system.setAppearance(false, false);
        system.setFontPixelSize(defaultFontPixelSize);
        content.destroy();
        content = null;
    }

    // All visible text items below `item`.
    function texts(item: Item): list<Item> {
        let found = [];
        if (!item.visible || item.opacity === 0)
            return found;
        const isText = item instanceof Text || item instanceof TextEdit || item instanceof TextInput;
        if (isText && item.text !== "" && item.width > 0)
            found.push(item);
        for (const child of Array.from(item.children))
            found = found.concat(Array.from(texts(child)));
        return found;
    }

    function luminance(color: color): real {
        const linear = c => c <= 0.04045 ? c / 12.92 : Math.pow((c + 0.055) / 1.055, 2.4);
        return 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b);
    }

    function contrast(one: color, other: color): real {
        const first = luminance(one);
        const second = luminance(other);
        return (Math.max(first, second) + 0.05) / (Math.min(first, second) + 0.05);
    }

    // The contrast of a painted text to the background. The background is the most frequent colour,
    // and the text has the colour with the greatest contrast to the background.
    function paintedContrast(text: Item, image: QtObject): real {
        const bounds = text.mapToItem(testCase, 0, 0, text.width, text.height);
        const counts = new Map();
        for (let y = Math.ceil(bounds.top); y < Math.floor(bounds.bottom); ++y) {
            for (let x = Math.ceil(bounds.left); x < Math.floor(bounds.right); ++x) {
                const color = String(image.pixel(x, y));
                counts.set(color, (counts.get(color) ?? 0) + 1);
            }
        }
        const colors = Array.from(counts.keys()).map(name => Qt.color(name));
        const background = colors.reduce((a, b) => counts.get(String(a)) >= counts.get(String(b)) ? a : b);
        return Math.max(...colors.map(color => contrast(color, background)));
    }

    function verifyContrasts(item: Item, expectedTexts: int) {
        wait(Theme.transition + 50);
        const found = texts(item);
        const image = grabImage(testCase);
        verify(found.length >= expectedTexts, "texts: " + found.length);
        for (const text of found) {
            const measured = paintedContrast(text, image);
            verify(measured >= 4.5, text.text + " has a contrast of " + measured.toFixed(2));
        }
    }

    function test_paintedContrastMeasuresThePaintedColors() {
        const image = grabImage(testCase);
        verify(paintedContrast(faint, image) < 2);
        verify(paintedContrast(plain, image) > 15);
    }

    function test_contrast_data() {
        return [{
                "tag": "light",
                "dark": false
            }, {
                "tag": "dark",
                "dark": true
            }];
    }

    function test_contrast(data) {
        // Motion is reduced first, so that the colours change without a transition.
        system.setAppearance(false, true);
        system.setAppearance(data.dark, true);
        compare(Theme.dark, data.dark);
        // One secret for each of the four ratings.
        for (const length of [6, 10, 12, 15]) {
            content.model.settings.length = length;
            verifyContrasts(content, 18);
        }
        content.model.copyToClipboard();
        verifyContrasts(content, 18);
        content.model.settings.mode = 1;
        verifyContrasts(content, 15);
        content.model.settings.separator = "";
        verifyContrasts(content, 15);
        content.value.editor.selectAll();
        verifyContrasts(content, 15);
    }

    function test_contrastUnderPointer_data() {
        return test_contrast_data();
    }

    function test_contrastUnderPointer(data) {
        // Motion is reduced first, so that the colours change without a transition.
        system.setAppearance(false, true);
        system.setAppearance(data.dark, true);
        for (const name of ["generate", "copy", "historyRow0", "modePicker"]) {
            const control = findChild(content, name) as Item;
            mouseMove(control, control.width / 2, control.height / 2);
            verifyContrasts(control, 1);
            mousePress(control, control.width / 2, control.height / 2);
            verifyContrasts(control, 1);
            mouseRelease(control, control.width / 2, control.height / 2);
        }
        mouseMove(content, 0, 0);
    }

    function test_contrastInTheAlert_data() {
        return test_contrast_data();
    }

    function test_contrastInTheAlert(data) {
        // Motion is reduced first, so that the colours change without a transition.
        system.setAppearance(false, true);
        system.setAppearance(data.dark, true);
        for (const group of ["lowercase", "uppercase", "numbers", "symbols"])
            content.model.settings[group] = false;
        const alert = findChild(content, "errorAlert") as ErrorAlert;
        tryVerify(() => alert.opened);
        verifyContrasts(alert.contentItem, 3);
    }

    function test_contrastInTheAboutView_data() {
        return test_contrast_data();
    }

    function test_contrastInTheAboutView(data) {
        // Motion is reduced first, so that the colours change without a transition.
        system.setAppearance(false, true);
        system.setAppearance(data.dark, true);
        verifyContrasts(about, 6);
    }

    function test_contrastInAMenu_data() {
        return test_contrast_data();
    }

    function test_contrastInAMenu(data) {
        // Motion is reduced first, so that the colours change without a transition.
        system.setAppearance(false, true);
        system.setAppearance(data.dark, true);
        menu.open();
        tryVerify(() => menu.opened);
        verifyContrasts(menu.contentItem, 4);
        menu.currentIndex = 0;
        verifyContrasts(menu.contentItem, 4);
        menu.close();
        tryVerify(() => !menu.visible);
    }

    function test_theColorSchemeFollowsTheSystemWhileRunning() {
        system.setAppearance(true, false);
        verify(Theme.dark);
        verify(waitForRendering(content));
        compare(grabImage(content).pixel(140, 605), Theme.window);
        verify(luminance(Theme.window) < 0.1);
        system.setAppearance(false, false);
        verify(!Theme.dark);
        verify(waitForRendering(content));
        compare(grabImage(content).pixel(140, 605), Theme.window);
        verify(luminance(Theme.window) > 0.8);
    }

    function test_reducedMotionDisablesTransitions() {
        verify(Theme.transition > 0);
        verify(Theme.transition <= 200);
        system.setAppearance(false, true);
        compare(Theme.transition, 0);
        const symbolsSwitch = findChild(content, "symbols") as Switch;
        const knob = findChild(symbolsSwitch, "knob") as Item;
        const before = knob.x;
        mouseClick(symbolsSwitch);
        verify(knob.x < before);
        compare(knob.x, 2);
    }

    function test_theKnobIsAnimatedWithoutReducedMotion() {
        const symbolsSwitch = findChild(content, "symbols") as Switch;
        const knob = findChild(symbolsSwitch, "knob") as Item;
        const before = knob.x;
        mouseClick(symbolsSwitch);
        verify(knob.x > 2);
        tryCompare(knob, "x", 2);
        verify(before > 2);
    }

    function test_everyIconIsDrawn_data() {
        const names = ["key.horizontal.fill", "lock.shield", "shield.slash", "shield.lefthalf.filled", "shield", "checkmark.shield.fill", "sparkles", "arrow.clockwise", "doc.on.doc", "checkmark", "arrow.up.left", "menu", "window.close", "window.maximize", "window.minimize", "window.restore"];
        return Array.from(names, name => ({
                        "tag": name
                    }));
    }

    function test_everyIconIsDrawn(data) {
        symbol.name = data.tag;
        verify(waitForRendering(symbol));
        const image = grabImage(testCase);
        const bounds = symbol.mapToItem(testCase, 0, 0, symbol.width, symbol.height);
        let coloredPixels = 0;
        for (let y = bounds.top; y < bounds.bottom; ++y) {
            for (let x = bounds.left; x < bounds.right; ++x) {
                if (Qt.colorEqual(image.pixel(x, y), symbol.color))
                    ++coloredPixels;
            }
        }
        verify(coloredPixels > 20, "pixels in the symbol's colour: " + coloredPixels);
        symbol.name = "";
    }

    function waitForLayout() {
        for (const name of ["settingsColumn", "resultColumn"])
            verify(waitForItemPolished(findChild(content, name)));
    }

    // Verifies that at the minimum size every text is complete, inside the content and separate from
    // the other texts. The secrets in the history are excluded, because the history elides them.
    function verifyNothingIsCut() {
        // The minimum size is final only after the layout at the first minimum size.
        for (let i = 0; i < 2; ++i) {
            waitForLayout();
            content.width = content.minimumWidth;
            content.height = content.minimumHeight;
        }
        waitForLayout();
        const found = Array.from(texts(content)).filter(text => text.objectName !== "secret");
        const allBounds = found.map(text => {
                const bounds = text.mapToItem(content, 0, 0, text.width, text.height);
                verify(!text.truncated, text.text);
                verify(text.contentWidth <= text.width + 0.5, text.text + ": " + text.contentWidth + " in " + text.width);
                verify(text.contentHeight <= text.height + 0.5, text.text + ": " + text.contentHeight + " in " + text.height);
                verify(bounds.left >= 0 && bounds.top >= 0 && bounds.right <= content.width && bounds.bottom <= content.height, text.text + " at " + bounds);
                return bounds;
            });
        for (let i = 0; i < allBounds.length; ++i) {
            for (let j = 0; j < i; ++j) {
                const areSeparate = allBounds[i].left >= allBounds[j].right || allBounds[j].left >= allBounds[i].right || allBounds[i].top >= allBounds[j].bottom || allBounds[j].top >= allBounds[i].bottom;
                verify(areSeparate, found[i].text + " overlaps " + found[j].text);
            }
        }
    }

    function test_contentFitsAtFontSize_data() {
        return [{
                "tag": "small",
                "pixels": 9,
                "body": 13
            }, {
                "tag": "default",
                "pixels": 13,
                "body": 13
            }, {
                "tag": "150 %",
                "pixels": 20,
                "body": 20
            }, {
                "tag": "200 %",
                "pixels": 26,
                "body": 26
            }];
    }

    function test_contentFitsAtFontSize(data) {
        system.setFontPixelSize(data.pixels);
        compare(Theme.bodyFont.pixelSize, data.body);
        verify(Theme.captionFont.pixelSize >= 11);
        for (let i = 0; i < 4; ++i)
            content.model.generate();
        verifyNothingIsCut();
        content.model.settings.length = 64;
        verifyNothingIsCut();
        content.model.settings.mode = 1;
        content.model.settings.wordCount = 8;
        verifyNothingIsCut();
    }

    function test_theMinimumSizeIs760By610AtTheDefaultFont() {
        compare([content.minimumWidth, content.minimumHeight], [760, 610]);
        for (let i = 0; i < 4; ++i)
            content.model.generate();
        content.model.settings.length = 64;
        compare([content.minimumWidth, content.minimumHeight], [760, 610]);
        content.model.settings.mode = 1;
        compare([content.minimumWidth, content.minimumHeight], [760, 610]);
    }

    function test_theMinimumSizeGrowsWithTheFont() {
        for (let i = 0; i < 4; ++i)
            content.model.generate();
        system.setFontPixelSize(20);
        waitForLayout();
        verify(content.minimumHeight > 610);
        compare(findChild(content, "settingsPanel").width > 280, true);
    }

    readonly property int defaultFontPixelSize: 12

    height: 1400
    name: "Look"
    visible: true
    when: windowShown
    width: 1400

    Component {
        id: contentComponent

        ContentView {
            focus: true
        }
    }

    FakeSystem {
        id: system
    }

    Rectangle {
        color: "#ffffff"
        height: 100
        width: 300
        x: 1000
        y: 800

        Text {
            id: faint

            color: "#c8c8c8"
            font.pixelSize: 11
            text: "schwach"
        }

        Text {
            id: plain

            color: "#000000"
            font.pixelSize: 11
            text: "deutlich"
            y: 40
        }

        Icon {
            id: symbol

            color: "#102030"
            height: 48
            name: ""
            width: 48
            x: 100
        }
    }

    AboutView {
        id: about

        height: implicitHeight
        width: implicitWidth
        x: 1000
        y: 300
    }

    Menu {
        id: menu

        x: 1000

        MenuItem {
            action: commandAction
            shortcut: "Ctrl+1"
        }

        MenuItem {
            action: otherAction
            shortcut: "Ctrl+2"
        }
    }

    T.Action {
        id: commandAction

        text: "Erster Befehl"
    }

    T.Action {
        id: otherAction

        text: "Zweiter Befehl"
    }
}
