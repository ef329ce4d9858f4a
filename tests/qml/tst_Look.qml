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

    // Two lines are balanced if the longer line is not much longer than half of the text.
    function verifyBalancedLines(text: Text) {
        compare(text.lineCount, 2);
        verify(text.contentWidth <= 0.65 * text.implicitWidth, text.contentWidth + " of " + text.implicitWidth);
        verify(Math.abs(text.x + text.width / 2 - text.parent.width / 2) < 1);
    }

    function test_theMessageOfTheAlertHasBalancedLines() {
        for (const group of ["lowercase", "uppercase", "numbers", "symbols"])
            content.model.settings[group] = false;
        verifyBalancedLines(findChild(content, "alertMessage") as Text);
    }

    function test_theClipboardNoteHasBalancedLines() {
        const note = findChild(content, "clipboardNote") as Text;
        content.width = 1000;
        waitForLayout();
        compare(note.lineCount, 1);
        system.setFontPixelSize(20);
        waitForLayout();
        verifyBalancedLines(note);
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
        compare(knob.x, 0);
    }

    function test_theKnobIsAnimatedWithoutReducedMotion() {
        const symbolsSwitch = findChild(content, "symbols") as Switch;
        const knob = findChild(symbolsSwitch, "knob") as Item;
        const before = knob.x;
        mouseClick(symbolsSwitch);
        verify(knob.x > 0);
        tryCompare(knob, "x", 0);
        verify(before > 0);
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
        system.setFontPixelSize(20);
        waitForLayout();
        verify(content.minimumHeight > 610);
        compare(findChild(content, "settingsPanel").width > 280, true);
    }

    // A minimum size that grows with the history would enlarge the window at a click on a button.
    function test_theMinimumSizeDoesNotGrowWithTheHistory() {
        system.setFontPixelSize(20);
        waitForLayout();
        sizes.clear();
        for (let i = 0; i < 4; ++i) {
            content.model.generate();
            waitForLayout();
        }
        content.model.settings.length = 64;
        waitForLayout();
        content.model.settings.mode = 1;
        waitForLayout();
        compare(sizes.count, 0);
    }

    // The greatest contrast of the painted pixels from `first` to `second`, points in `item`, to the
    // pixel at `first`. The points lie on a horizontal or a vertical line.
    function contrastOfLine(item: Item, first: point, second: point, image: var): real {
        const begin = item.mapToItem(testCase, first.x, first.y);
        const end = item.mapToItem(testCase, second.x, second.y);
        const steps = Math.max(Math.abs(end.x - begin.x), Math.abs(end.y - begin.y));
        const ground = image.pixel(Math.round(begin.x), Math.round(begin.y));
        let best = 1;
        for (let i = 1; i <= steps; ++i) {
            const x = Math.round(begin.x + (end.x - begin.x) * i / steps);
            const y = Math.round(begin.y + (end.y - begin.y) * i / steps);
            best = Math.max(best, contrast(image.pixel(x, y), ground));
        }
        return best;
    }

    function verifyOutline(name: string, item: Item, first: point, second: point) {
        const measured = contrastOfLine(item, first, second, grabImage(testCase));
        verify(measured >= 3, name + " has a contrast of " + measured.toFixed(2));
    }

    function test_outlinesOfControls_data() {
        return test_contrast_data();
    }

    function test_outlinesOfControls(data) {
        // Motion is reduced first, so that the colours change without a transition.
        system.setAppearance(false, true);
        system.setAppearance(data.dark, true);
        const toggle = findChild(content, "symbols") as Switch;
        const indicator = toggle.indicator;
        const middle = indicator.height / 2;
        verify(toggle.checked);
        verifyOutline("switch that is on", indicator, Qt.point(-3, middle), Qt.point(3, middle));
        verifyOutline("knob that is on", indicator, Qt.point(middle, middle), Qt.point(indicator.width - middle, middle));
        content.model.settings.symbols = false;
        verify(!toggle.checked);
        verifyOutline("switch that is off", indicator, Qt.point(-3, middle), Qt.point(3, middle));
        verifyOutline("knob that is off", indicator, Qt.point(indicator.width - middle, middle), Qt.point(middle, middle));
        content.model.settings.length = 36;
        const slider = findChild(findChild(content, "length"), "slider") as Slider;
        verifyOutline("left part of the groove", slider, Qt.point(20, 0), Qt.point(20, slider.height - 1));
        verifyOutline("right part of the groove", slider, Qt.point(slider.width - 20, 0), Qt.point(slider.width - 20, slider.height - 1));
        const handle = slider.handle;
        verifyOutline("slider handle", handle, Qt.point(handle.width / 2, -1), Qt.point(handle.width / 2, handle.height / 2));
        const picker = findChild(content, "modePicker") as SegmentedControl;
        verifyOutline("mode picker", picker, Qt.point(picker.width + 3, picker.height / 2), Qt.point(picker.width - 3, picker.height / 2));
        const boundary = picker.width / 2;
        verifyOutline("selected segment", picker, Qt.point(boundary + 5, picker.height / 2), Qt.point(boundary - 5, picker.height / 2));
        const button = findChild(content, "generate") as Button;
        verifyOutline("button", button, Qt.point(-3, button.height / 2), Qt.point(3, button.height / 2));
        content.model.settings.mode = 1;
        const field = findChild(content, "separator") as TextField;
        verify(waitForItemPolished(findChild(content, "settingsColumn")));
        verifyOutline("field", field, Qt.point(-3, field.height / 2), Qt.point(3, field.height / 2));
    }

    function test_theRatingMittelIsOrange_data() {
        return test_contrast_data();
    }

    // The contrast is tested by `test_contrast`. Orange that is not bright enough looks brown.
    function test_theRatingMittelIsOrange(data) {
        system.setAppearance(data.dark, false);
        const color = Theme.strengthColors[1];
        const hue = 360 * color.hsvHue;
        verify(hue >= 20 && hue <= 40, "hue: " + hue);
        verify(color.hsvSaturation >= 0.9, "saturation: " + color.hsvSaturation);
        verify(color.hsvValue >= 0.74, "value: " + color.hsvValue);
    }

    // The bounds of the pixels in `item` that are not the ground.
    function paintedBounds(item: Item): rect {
        const image = grabImage(testCase);
        const bounds = item.mapToItem(testCase, 0, 0, item.width, item.height);
        const ground = Theme.window;
        let left = bounds.right;
        let right = bounds.left;
        let top = bounds.bottom;
        let bottom = bounds.top;
        for (let y = Math.floor(bounds.top); y < bounds.bottom; ++y) {
            for (let x = Math.floor(bounds.left); x < bounds.right; ++x) {
                if (contrast(image.pixel(x, y), ground) < 1.5)
                    continue;
                left = Math.min(left, x);
                right = Math.max(right, x + 1);
                top = Math.min(top, y);
                bottom = Math.max(bottom, y + 1);
            }
        }
        return Qt.rect(left - bounds.left, top - bounds.top, right - left, bottom - top);
    }

    function test_theTitleSymbolIsAsLargeAsTheText() {
        const title = findChild(content, "title") as IconLabel;
        const icon = title.children[0].children[0] as Icon; // qmllint disable property
        compare(icon.name, "key.horizontal.fill");
        const painted = paintedBounds(icon);
        verify(painted.left <= 0.5, "The symbol begins at " + painted.left);
        capital.font = title.font;
        const capitalHeight = capital.tightBoundingRect.height;
        verify(Math.abs(painted.height - capitalHeight) <= 1, painted.height + " beside " + capitalHeight);
    }

    function test_everySwitchHasItsLabelOnOneLine_data() {
        return Array.from([12, 13, 14, 15, 18, 20], pixels => ({
                        "tag": pixels + " pixels",
                        "pixels": pixels
                    }));
    }

    function test_everySwitchHasItsLabelOnOneLine(data) {
        system.setFontPixelSize(data.pixels);
        waitForLayout();
        for (const name of ["avoidAmbiguous", "requireEveryGroup"]) {
            const label = findChild(content, name).contentItem as Text; // qmllint disable property
            compare(label.lineCount, 1, name);
            verify(label.contentWidth + label.rightPadding <= label.width, label.contentWidth + " in " + label.width);
        }
        if (data.pixels <= 13)
            compare(findChild(content, "settingsPanel").width, 280);
    }

    function test_theWordsOfALongLabelKeepTheirDistance() {
        const label = findChild(content, "requireEveryGroup").contentItem as Text; // qmllint disable property
        space.font = Theme.bodyFont;
        const usual = space.advanceWidth;
        space.font = label.font;
        verify(space.advanceWidth >= 0.9 * usual, space.advanceWidth + " instead of " + usual);
    }

    function test_controlsGrowWithTheText() {
        content.width = 1200;
        const toggle = findChild(content, "symbols") as Switch;
        const slider = findChild(findChild(content, "length"), "slider") as Slider;
        const history = findChild(content, "history") as HistoryBox;
        const knob = findChild(toggle, "knob") as Item;
        const measure = () => [toggle.indicator.width, toggle.indicator.height, knob.height, slider.height, slider.handle.width, slider.background.height, history.width];
        waitForLayout();
        const before = measure();
        system.setFontPixelSize(20);
        waitForLayout();
        const after = measure();
        for (let i = 0; i < before.length; ++i)
            verify(Math.abs(after[i] / before[i] - 20 / 13) <= 0.13, i + ": " + before[i] + " to " + after[i]);
    }

    function test_theFocusRingOfTheSecretIsForTheKeyboard() {
        const isRingDrawn = () => {
            const corner = content.value.mapToItem(testCase, 0, 0);
            return Qt.colorEqual(grabImage(testCase).pixel(corner.x - 7, corner.y + content.value.height / 2), Theme.accent);
        };
        mouseClick(content.value);
        verify(content.value.editor.activeFocus);
        verify(!isRingDrawn());
        const generate = findChild(content, "generate") as Button;
        generate.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Backtab);
        verify(content.value.editor.activeFocus);
        verify(isRingDrawn());
    }

    function test_popupsHaveAShadow_data() {
        return test_contrast_data();
    }

    // The shadow is visible below the popup and fades with the distance.
    function verifyShadow(background: Item, ground: color) {
        const below = background.mapToItem(testCase, background.width / 2, background.height);
        const image = grabImage(testCase);
        const near = image.pixel(below.x, below.y + 2);
        const far = image.pixel(below.x, below.y + 10);
        verify(luminance(near) < 0.93 * luminance(ground), near + " on " + ground);
        verify(luminance(far) > luminance(near), far + " beside " + near);
        verify(luminance(far) < luminance(ground), far + " on " + ground);
    }

    function test_popupsHaveAShadow(data) {
        system.setAppearance(data.dark, true);
        shadowMenu.open();
        tryVerify(() => shadowMenu.opened);
        verifyShadow(shadowMenu.background, shadowGround.color);
        shadowMenu.close();
        tryVerify(() => !shadowMenu.visible);
    }

    function test_theAlertHasAShadow() {
        for (const group of ["lowercase", "uppercase", "numbers", "symbols"])
            content.model.settings[group] = false;
        const alert = findChild(content, "errorAlert") as ErrorAlert;
        tryVerify(() => alert.opened);
        // Below the alert, the scrim covers the surface.
        const corner = content.mapToItem(testCase, content.width - 20, content.height - 20);
        verifyShadow(alert.background, grabImage(testCase).pixel(corner.x, corner.y));
    }

    // Antialiasing would draw pixels of other colours.
    function test_theSymbolsOfHorizontalLinesAreSharp_data() {
        return Array.from(["menu", "window.minimize"], name => ({
                        "tag": name
                    }));
    }

    function test_theSymbolsOfHorizontalLinesAreSharp(data) {
        titleBarSymbol.name = data.tag;
        const image = grabImage(testCase);
        const bounds = titleBarSymbol.mapToItem(testCase, 0, 0, titleBarSymbol.width, titleBarSymbol.height);
        let coloredPixels = 0;
        for (let y = bounds.top; y < bounds.bottom; ++y) {
            for (let x = bounds.left; x < bounds.right; ++x) {
                const color = image.pixel(x, y);
                if (Qt.colorEqual(color, titleBarSymbol.color))
                    ++coloredPixels;
                else
                    verify(Qt.colorEqual(color, "#ffffff"), color + " at " + (x - bounds.left) + ", " + (y - bounds.top));
            }
        }
        verify(coloredPixels >= 8, "pixels in the symbol's colour: " + coloredPixels);
        titleBarSymbol.name = "";
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

        Icon {
            id: titleBarSymbol

            color: "#102030"
            height: 16
            name: ""
            width: 16
            x: 200
        }
    }

    SignalSpy {
        id: sizes

        signalName: "minimumHeightChanged"
        target: testCase.content
    }

    TextMetrics {
        id: space

        text: " "
    }

    TextMetrics {
        id: capital

        text: "M"
    }

    Rectangle {
        id: shadowGround

        color: Theme.surface
        height: 300
        width: 400
        x: 1000
        y: 1000

        Menu {
            id: shadowMenu

            x: 50
            y: 50

            MenuItem {
                title: "Befehl"
            }
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
