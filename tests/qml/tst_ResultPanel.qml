// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Morvane.Testing
import Morvane.Views
import Morvane.Views.Controls

TestCase {
    id: testCase

    property ContentView content: null

    function shown(name: string): string {
        return findChild(content, name).text;
    }

    function rows(): list<string> {
        const texts = [];
        for (let i = 0; findChild(content, "historyRow" + i); ++i)
            texts.push(findChild(findChild(content, "historyRow" + i), "secret").text);
        return texts;
    }

    function init() {
        content = contentComponent.createObject(testCase, {
                "width": 760,
                "height": 610
            }) as ContentView;
        verify(waitForRendering(content));
        generations.target = content.model;
        generations.clear();
    }

    function cleanup() {
        generations.target = null;
        system.advanceClock(30000);
        system.setFontPixelSize(defaultFontPixelSize);
        mouseMove(testCase, 1, 1);
        content.destroy();
        content = null;
    }

    function test_theWindowHasItsHeightBeforeTheFirstFrame() {
        const other = createTemporaryObject(contentComponent, testCase) as ContentView;
        other.width = 760;
        compare(other.minimumHeight, 610);
    }

    function test_ratingFollowsTheEntropy_data() {
        return [{
                "tag": "weak",
                "length": 6,
                "title": "Schwach",
                "symbol": "shield.slash",
                "hue": 0,
                "bits": "· ca. 37 Bit"
            }, {
                "tag": "fair",
                "length": 10,
                "title": "Mittel",
                "symbol": "shield.lefthalf.filled",
                "hue": 30,
                "bits": "· ca. 62 Bit"
            }, {
                "tag": "good",
                "length": 12,
                "title": "Gut",
                "symbol": "shield",
                "hue": 211,
                "bits": "· ca. 74 Bit"
            }, {
                "tag": "strong",
                "length": 15,
                "title": "Stark",
                "symbol": "checkmark.shield.fill",
                "hue": 132,
                "bits": "· ca. 93 Bit"
            }];
    }

    function test_ratingFollowsTheEntropy(data) {
        content.model.settings.length = data.length;
        const strength = findChild(content, "strength") as IconLabel;
        compare([strength.text, strength.icon], [data.title, data.symbol]);
        // The hues of red, orange, blue and green.
        fuzzyCompare(strength.color.hsvHue * 360, data.hue, 5);
        compare(shown("entropy"), data.bits);
    }

    function test_anEntropyOfZeroIsShownAsZero() {
        for (const name of ["lowercase", "uppercase", "numbers", "symbols"])
            content.model.settings[name] = false;
        content.model.useFromHistory(content.model.generated);
        compare(shown("entropy"), "· ca. 0 Bit");
        compare(shown("strength"), "Schwach");
    }

    function test_fontSizeDependsOnTheLengthOfTheSecret_data() {
        return [{
                "tag": "38",
                "length": 38,
                "size": 28
            }, {
                "tag": "39",
                "length": 39,
                "size": 22
            }];
    }

    function test_fontSizeDependsOnTheLengthOfTheSecret(data) {
        content.width = 1200;
        content.model.settings.length = data.length;
        compare(content.value.size, data.size);
        verify(!content.value.truncated);
    }

    function test_fontSizeDependsOnGraphemeClusters() {
        content.width = 1200;
        content.model.useFromHistory("🇩🇪".repeat(38));
        compare(content.value.size, 28);
        content.model.useFromHistory("🇩🇪".repeat(39));
        compare(content.value.size, 22);
    }

    // Verifies that the secret has at most three lines, and that no line is wider than the editor.
    function verifyIsFullyReadable() {
        const value = content.value.editor;
        verify(!content.value.truncated, value.text);
        verify(value.lineCount <= 3, value.text + " has lines: " + value.lineCount);
        verify(value.contentWidth <= value.width, value.text);
        verify(content.value.size >= 0.65 * 22);
    }

    function test_theLongestPasswordIsFullyShownInTheSmallestWindow() {
        content.model.settings.length = 64;
        for (let i = 0; i < 20; ++i) {
            content.model.generate();
            verifyIsFullyReadable();
        }
        content.model.useFromHistory("W".repeat(64));
        verifyIsFullyReadable();
    }

    function test_eightLongWordsAreFullyShownInTheSmallestWindow_data() {
        return [{
                "tag": "wide letters",
                "separator": "WWW"
            }, {
                "tag": "spaces around a dot",
                "separator": " · "
            }, {
                "tag": "em dashes",
                "separator": "———"
            }, {
                "tag": "ideographs",
                "separator": "鍵鍵鍵"
            }, {
                "tag": "flags",
                "separator": "🇩🇪🇩🇪🇩🇪"
            }];
    }

    function test_eightLongWordsAreFullyShownInTheSmallestWindow(data) {
        content.model.useFromHistory((data.separator + "Spiegel").repeat(8).slice(data.separator.length) + data.separator + "99");
        verifyIsFullyReadable();
    }

    // The texts of the lines in which the editor shows the secret.
    function lines(): list<string> {
        const editor = content.value.editor;
        const texts = [];
        let y = -1;
        for (let i = 0; i < editor.length; ++i) {
            const top = editor.positionToRectangle(i).y;
            if (top > y)
                texts.push("");
            y = Math.max(top, y);
            texts[texts.length - 1] += editor.text[i];
        }
        compare(texts.length, editor.lineCount);
        return texts;
    }

    function test_passwordsHaveBalancedLinesOfTheSameSizeInEveryDraw_data() {
        // 355 pixels have 21 characters of the larger font and 26 of the smaller font.
        return Array.from([{
                    "length": 10,
                    "lines": [10]
                }, {
                    "length": 21,
                    "lines": [21]
                }, {
                    "length": 22,
                    "lines": [11, 11]
                }, {
                    "length": 38,
                    "lines": [19, 19]
                }, {
                    "length": 39,
                    "lines": [20, 19]
                }, {
                    "length": 53,
                    "lines": [18, 18, 17]
                }, {
                    "length": 64,
                    "lines": [22, 21, 21]
                }]).map(row => Object.assign(row, {
                        "tag": String(row.length)
                    }));
    }

    function test_passwordsHaveBalancedLinesOfTheSameSizeInEveryDraw(data) {
        content.model.settings.length = data.length;
        for (let i = 0; i < 5; ++i) {
            content.model.generate();
            compare(lines().map(line => line.length), data.lines);
            compare(content.value.size, data.length > 38 ? 22 : 28);
        }
    }

    function test_passphrasesBreakAfterTheSeparator_data() {
        return Array.from(["-", ".", "_", ",", "+", " ", " · ", " - ", "x", "7", "", "é", "א", "שלו", "(", "—", "🔑", "🇩🇪"]).map(separator => ({
                        "tag": "'" + separator + "'",
                        "separator": separator
                    }));
    }

    function test_passphrasesBreakAfterTheSeparator(data) {
        content.model.settings.mode = 1;
        content.model.settings.separator = data.separator;
        for (const wordCount of [4, 8]) {
            content.model.settings.wordCount = wordCount;
            for (let i = 0; i < 4; ++i) {
                content.model.generate();
                verifyIsFullyReadable();
                const shown = lines();
                compare(shown.join(""), content.model.generated);
                for (const line of shown.slice(1))
                    verify(/^([a-z]{3}|[0-9]{1,2}$)/.test(line), shown.join(" / "));
                if (data.separator.length > 0) {
                    for (const line of shown.slice(0, -1))
                        verify(line.endsWith(data.separator), shown.join(" / "));
                }
            }
        }
    }

    function test_theLinesAreCentred() {
        content.model.settings.length = 64;
        const editor = content.value.editor;
        let start = 0;
        for (const line of lines()) {
            const left = editor.positionToRectangle(start).x;
            const last = editor.positionToRectangle(start + line.length - 1);
            const character = editor.positionToRectangle(start + 1).x - left;
            fuzzyCompare(left, editor.width - last.x - character, 2);
            start += line.length;
        }
    }

    function test_theRatingKeepsItsDistanceFromLinesWithTallCharacters() {
        tryCompare(tallFont, "status", FontLoader.Ready);
        content.model.settings.mode = 1;
        content.model.settings.wordCount = 8;
        const usual = content.value.editor.contentHeight / content.value.editor.lineCount;
        content.model.settings.separator = tallCharacter;
        const value = content.value;
        const heights = new Map();
        for (let i = 0; i < value.editor.length; ++i) {
            const rectangle = value.editor.positionToRectangle(i);
            heights.set(rectangle.y, rectangle.height);
        }
        const sum = Array.from(heights.values()).reduce((a, b) => a + b, 0);
        compare(heights.size, value.editor.lineCount);
        verify(sum > 1.5 * usual * heights.size, "height of the lines: " + sum);
        verify(value.height >= sum, "height of the value: " + value.height);
        const column = findChild(content, "resultColumn") as Item;
        verify(waitForItemPolished(column));
        compare(findChild(content, "strength").mapToItem(column, 0, 0).y, value.y + value.height + 22);
    }

    function test_theButtonsStayWhereTheyAre_data() {
        return [{
                "tag": "passwords",
                "mode": 0,
                "wordCount": 5,
                "separator": "-"
            }, {
                "tag": "3 words",
                "mode": 1,
                "wordCount": 3,
                "separator": "-"
            }, {
                "tag": "4 words",
                "mode": 1,
                "wordCount": 4,
                "separator": "-"
            }, {
                "tag": "5 words",
                "mode": 1,
                "wordCount": 5,
                "separator": " · "
            }, {
                "tag": "6 words",
                "mode": 1,
                "wordCount": 6,
                "separator": "-"
            }, {
                "tag": "8 words",
                "mode": 1,
                "wordCount": 8,
                "separator": ""
            }];
    }

    function test_theButtonsStayWhereTheyAre(data) {
        content.width = 860;
        content.model.settings.mode = data.mode;
        content.model.settings.wordCount = data.wordCount;
        content.model.settings.separator = data.separator;
        for (let i = 0; i < 4; ++i)
            content.model.generate();
        const column = findChild(content, "resultColumn") as Item;
        verify(waitForItemPolished(column));
        const button = findChild(content, "generate") as Button;
        const position = button.mapToItem(content, 0, 0);
        for (let i = 0; i < 40; ++i) {
            content.model.generate();
            verify(waitForItemPolished(column));
            compare(button.mapToItem(content, 0, 0), position);
        }
    }

    function test_everyClickAtOnePlaceHitsTheButtonWhileTheHistoryGrows() {
        compare(content.model.history.length, 1);
        const button = findChild(content, "generate") as Button;
        const column = findChild(content, "resultColumn") as Item;
        const point = button.mapToItem(content, button.width / 2, button.height / 2);
        for (let i = 0; i < 40; ++i) {
            mouseMove(content, point.x, point.y);
            mouseClick(content, point.x, point.y);
            waitForColumn();
        }
        compare(generations.count, 40);
        // The pointer leaves the panel, and the column is centred again.
        mouseMove(content, 1, 1);
        tryVerify(() => Math.abs(column.y + column.height / 2 - content.height / 2) <= 0.51);
    }

    // Waits until the column has been laid out with all rows of the history.
    function waitForColumn() {
        const history = findChild(content, "history") as HistoryBox;
        tryVerify(() => history.height === history.heightOfRows(history.rowCount));
        verify(waitForItemPolished(findChild(content, "resultColumn")));
    }

    // The position of the button "Neu erzeugen" in the content.
    function buttonPosition(): real {
        waitForColumn();
        return findChild(content, "generate").mapToItem(content, 0, 0).y;
    }

    function isCentred(): bool {
        const column = findChild(content, "resultColumn") as Item;
        return Math.abs(column.y + column.height / 2 - content.height / 2) <= 0.51;
    }

    function test_thePointerHoldsTheButtons_data() {
        return [{
                "tag": "as it enters",
                "change": () => {}
            }, {
                "tag": "when the mode changes",
                "change": () => content.model.settings.mode = 1
            }, {
                "tag": "when the window grows",
                "change": () => content.height = 790
            }, {
                "tag": "when the text grows",
                "change": () => {
                    system.setFontPixelSize(20);
                    content.width = content.minimumWidth;
                    content.height = Qt.binding(() => content?.minimumHeight ?? 0);
                    content.model.settings.mode = 1;
                    content.model.settings.wordCount = 8;
                }
            }];
    }

    function test_thePointerHoldsTheButtons(data) {
        compare(content.model.history.length, 1);
        mouseMove(content, 500, 20);
        buttonPosition();
        verify(isCentred());
        data.change();
        const rows = content.model.history.length;
        let position = buttonPosition();
        for (let i = rows; i < 6; ++i) {
            content.model.generate();
            compare(buttonPosition(), position);
        }
        const history = findChild(content, "history") as Item;
        verify(history.mapToItem(content, 0, history.height).y <= content.height - 30);
        // The pointer leaves the panel, and the column moves once.
        mouseMove(content, 1, 1);
        tryVerify(() => isCentred());
        position = buttonPosition();
        content.model.generate();
        compare(buttonPosition(), position);
    }

    // A larger text does not count as a growth of the history.
    function test_thePointerDoesNotHoldTheColumnWhenTheTextGrows() {
        content.height = 800;
        mouseMove(content, 500, 20);
        system.setFontPixelSize(20);
        content.width = content.minimumWidth;
        buttonPosition();
        verify(isCentred());
    }

    function test_aSecretThatDoesNotFitShrinksTo65PercentBeforeItIsElided() {
        let length = 64;
        const sizes = [];
        do {
            content.model.useFromHistory("W".repeat(length));
            sizes[sizes.length] = content.value.size;
            ++length;
        } while (!content.value.truncated)
        compare(sizes[0] <= 22, true);
        for (let i = 1; i < sizes.length; ++i)
            verify(sizes[i] <= sizes[i - 1], sizes);
        // 0.65 × 22 pixels, rounded up.
        compare(sizes.pop(), 15);
        compare(sizes.pop(), 15);
        verify(waitForRendering(content));
        verify(content.value.height <= content.value.longSecretHeight);
        const elided = findChild(content, "elidedValue") as Text;
        verify(elided.visible && elided.truncated);
        compare(elided.lineCount, 3);
        compare(elided.text, content.model.generated);
        content.model.generate();
        verify(!elided.visible);
    }

    function test_theSecretIsCentredWithMarginsOf32() {
        const value = content.value;
        const panel = findChild(content, "resultPanel") as Item;
        compare(value.width, panel.width - 60 - 64);
        compare(value.mapToItem(panel, 0, 0).x, 30 + 32);
        compare(value.editor.width, value.width);
    }

    function test_theSecretIsSelectedAndCopiedByKeyboard() {
        const value = content.value.editor;
        value.forceActiveFocus();
        keySequence("Ctrl+A");
        compare(value.selectedText, content.model.generated);
        keySequence("Ctrl+C");
        compare(system.clipboardText(), content.model.generated);
        verify(!content.model.copied);
        value.select(2, 5);
        keySequence("Ctrl+C");
        compare(system.clipboardText(), content.model.generated.slice(2, 5));
        value.deselect();
        keySequence("Ctrl+C");
        compare(system.clipboardText(), content.model.generated.slice(2, 5));
    }

    function test_theSecretIsSelectedByPointer() {
        const value = content.value.editor;
        const x = [0, 2, 5].map(position => value.positionToRectangle(position).x);
        mousePress(value, x[0], value.height / 2);
        mouseMove(value, x[1], value.height / 2);
        mouseMove(value, x[2], value.height / 2);
        mouseRelease(value, x[2], value.height / 2);
        compare(value.selectedText, content.model.generated.slice(0, 5));
    }

    function test_clicksSelectAWordAndEverything() {
        content.model.settings.mode = 1;
        const value = content.value.editor;
        const words = value.text.split("-");
        const second = value.positionToRectangle(words[0].length + 2);
        const centre = second.y + second.height / 2;
        mouseDoubleClickSequence(value, second.x, centre);
        compare(value.selectedText, words[1]);
        mouseClick(value, second.x, centre);
        compare(value.selectedText, value.text);
    }

    function test_aClickMovesTheCursorAndShiftExtendsTheSelection() {
        const value = content.value.editor;
        const x = [0, 5, 7].map(position => value.positionToRectangle(position).x);
        mouseClick(value, x[1], value.height / 2);
        compare(value.selectedText, "");
        mouseClick(value, x[2], value.height / 2, Qt.LeftButton, Qt.ShiftModifier);
        compare(value.selectedText, value.text.slice(5, 7));
        mouseClick(value, x[0], value.height / 2, Qt.LeftButton, Qt.ShiftModifier);
        compare(value.selectedText, value.text.slice(0, 5));
    }

    function test_theKeyboardSelectsLines() {
        content.model.settings.length = 64;
        const value = content.value.editor;
        value.forceActiveFocus();
        const shown = lines();
        keySequence("Ctrl+Home");
        keySequence("Shift+Down");
        compare(value.selectedText, value.text.slice(0, shown[0].length));
        keySequence("Shift+Left");
        compare(value.selectedText, value.text.slice(0, shown[0].length - 1));
        keySequence("Shift+End");
        compare(value.selectedText, shown[0]);
    }

    function test_theSecretCannotBeEdited() {
        const value = content.value.editor;
        value.forceActiveFocus();
        value.selectAll();
        keyClick(Qt.Key_X);
        keyClick(Qt.Key_Delete);
        keySequence("Ctrl+X");
        compare(value.text, content.model.generated);
    }

    function test_theCopyButtonCopiesAndConfirms() {
        const button = findChild(content, "copy") as Button;
        compare([button.text, button.icon.name], ["Kopieren", "doc.on.doc"]);
        const width = button.width;
        mouseClick(button);
        compare(system.clipboardText(), content.model.generated);
        compare([button.text, button.icon.name], ["Kopiert", "checkmark"]);
        compare(button.width, width);
        system.advanceClock(1400);
        compare([button.text, button.icon.name], ["Kopieren", "doc.on.doc"]);
        system.advanceClock(28600);
        compare(system.clipboardText(), "(leer)");
    }

    function test_theShortcutsWorkWithAnyKeyboardFocus_data() {
        return [{
                "tag": "nothing",
                "name": ""
            }, {
                "tag": "value",
                "name": "value"
            }, {
                "tag": "slider",
                "name": "slider"
            }, {
                "tag": "separator",
                "name": "separator"
            }, {
                "tag": "button",
                "name": "generate"
            }];
    }

    function test_theShortcutsWorkWithAnyKeyboardFocus(data) {
        content.model.settings.mode = 1;
        if (data.name !== "")
            findChild(content, data.name).forceActiveFocus();
        generations.clear();
        keySequence("Ctrl+Shift+C");
        compare(system.clipboardText(), content.model.generated);
        compare(shown("copy"), "Kopiert");
        keySequence("Ctrl+R");
        compare(generations.count, 1);
        system.advanceClock(30000);
    }

    function test_anEmptySecretIsNotCopiedButTheButtonStaysEnabled() {
        content.model.useFromHistory("");
        const button = findChild(content, "copy") as Button;
        verify(button.enabled);
        mouseClick(button);
        compare(button.text, "Kopieren");
        compare(system.clipboardText(), "(leer)");
    }

    function test_childrenAreInOrderWithSpacing22() {
        const column = findChild(content, "resultColumn") as Item;
        const panel = findChild(content, "resultPanel") as Item;
        const children = Array.from(column.children);
        compare(children.length, 6);
        compare(children[0].objectName, "icon");
        compare(children[1], content.value);
        compare(children[4].objectName, "clipboardNote");
        compare(children[5].objectName, "history");
        for (let i = 1; i < children.length; ++i)
            compare(children[i].y, children[i - 1].y + children[i - 1].height + 22);
        // Anchors centre on whole pixels: Qt 6.4 rounds the centre of the column, and Qt 6.8 also
        // rounds the position of the child.
        for (const child of children)
            verify(Math.abs(child.x + child.width / 2 - column.width / 2) < 1, child.objectName);
        compare(column.width, panel.width - 60);
        fuzzyCompare(column.y + column.height / 2, panel.height / 2, 0.51);
    }

    function test_theClipboardNoteNamesTheDelay() {
        compare(shown("clipboardNote"), "Die Zwischenablage wird nach 30 Sekunden geleert, sofern du nichts anderes kopierst.");
    }

    function test_buttonsAre12Apart() {
        const generate = findChild(content, "generate") as Button;
        const copy = findChild(content, "copy") as Button;
        compare([generate.text, generate.icon.name], ["Neu erzeugen", "arrow.clockwise"]);
        compare(copy.x, generate.x + generate.width + 12);
        compare(copy.height, generate.height);
    }

    function test_theButtonAndItsShortcutRegenerate() {
        mouseClick(findChild(content, "generate"));
        compare(generations.count, 1);
        keySequence("Ctrl+R");
        compare(generations.count, 2);
        findChild(content, "slider").forceActiveFocus();
        keySequence("Ctrl+R");
        compare(generations.count, 3);
    }

    function test_historyShowsTheNewestFour() {
        compare(rows(), [content.model.generated]);
        for (let i = 0; i < 6; ++i)
            content.model.generate();
        compare(content.model.history.length, 6);
        compare(rows(), content.model.history.slice(0, 4));
    }

    function test_aClickOnAHistoryRowDisplaysItsSecret() {
        for (let i = 0; i < 4; ++i)
            content.model.generate();
        const before = rows();
        verify(waitForRendering(content));
        generations.clear();
        const row = findChild(content, "historyRow2") as Button;
        // The space between the text and the arrow belongs to the button.
        mouseClick(row, row.width / 2, 1);
        compare(shown("value"), before[2]);
        compare(rows(), before);
        compare(generations.count, 1);
    }

    function test_anAmpersandInAHistoryRowCreatesNoShortcut() {
        content.model.settings.mode = 1;
        content.model.settings.separator = "&";
        const letter = secret => secret.split("&")[1][0];
        do
            content.model.generate();
        while (letter(rows()[0]) === letter(rows()[1]))
        const newest = shown("value");
        keySequence("Alt+" + letter(rows()[1]));
        compare(shown("value"), newest);
    }

    function test_historyBoxIsAtMost430Wide() {
        const box = findChild(content, "history") as Item;
        compare(box.width, 419);
        content.width = 1200;
        compare(box.width, 430);
        compare(box.radius, 12);
    }

    function test_aLongHistorySecretIsElidedBeforeTheArrow() {
        content.model.settings.length = 64;
        verify(waitForRendering(content));
        const row = findChild(content, "historyRow0") as Button;
        const text = findChild(row, "secret") as Text;
        const arrow = findChild(row, "arrow") as Icon;
        verify(text.truncated);
        compare(text.lineCount, 1);
        compare(text.rightPadding, arrow.width + 8);
        compare(text.mapToItem(row, text.width, 0).x, row.width);
        compare(arrow.name, "arrow.up.left");
        compare(arrow.x + arrow.width, row.width);
    }

    function test_aCutHistorySecretHasAToolTip() {
        content.model.settings.length = 64;
        for (let i = 0; i < 4; ++i)
            content.model.generate();
        const row = findChild(content, "historyRow0") as Button;
        row.hoverEnabled = true; // The offscreen platform has no hover effects by default.
        verify(waitForItemPolished(findChild(content, "resultColumn")));
        mouseMove(row, row.width / 2, row.height / 2);
        tryVerify(() => row.builtToolTip?.opened ?? false);
        compare(row.builtToolTip.text, content.model.generated);
        content.model.generate();
        compare(row.builtToolTip.text, content.model.generated);
        mouseMove(content, 1, 1);
        tryVerify(() => !row.builtToolTip.visible);
        compare(row.builtToolTip.text, "");
        content.model.settings.length = 10;
        compare(row.toolTip, "");
        row.forceActiveFocus(Qt.TabFocusReason);
        verify(row.visualFocus && !row.builtToolTip.visible);
        content.model.settings.length = 64;
        tryVerify(() => row.builtToolTip.opened);
    }

    function test_historyBoxHasPadding16AndSpacing8() {
        content.model.generate();
        content.model.generate();
        verify(waitForRendering(content));
        const box = findChild(content, "history") as Item;
        const heading = findChild(box, "historyHeading") as Text;
        const rows = [0, 1, 2].map(i => findChild(box, "historyRow" + i) as Item);
        compare(heading.text, "Diese Sitzung");
        compare(heading.mapToItem(box, 0, 0), Qt.point(16, 16));
        compare(rows[0].y, heading.y + heading.height + 8);
        compare(rows[1].y, rows[0].y + rows[0].height + 8);
        compare(rows[2].y, rows[1].y + rows[1].height + 8);
        compare(rows[2].mapToItem(box, rows[2].width, rows[2].height), Qt.point(box.width - 16, box.height - 16));
    }

    // Below the smallest size of body text.
    readonly property int defaultFontPixelSize: 12
    // A character of the private use area that only `tallFont` has.
    readonly property string tallCharacter: "\uE0F0"

    height: 800
    name: "ResultPanel"
    visible: true
    when: windowShown
    width: 1200

    Component {
        id: contentComponent

        ContentView {
            focus: true
        }
    }

    FakeSystem {
        id: system
    }

    // A font with one character. Its lines are 2.5 times as high as the font's size.
    FontLoader {
        id: tallFont

        source: "data:font/ttf;base64,AAEAAAAKAIAAAwAgT1MvMiKIMMQAAAEoAAAAYGNtYXAADOFDAAABkAAAADRnbHlms5Zh6AAAAcwAAAAWaGVhZF9GPbgAAACsAAAANmhoZWEAsgASAAAA5AAAACRobXR4ADAAAAAAAYgAAAAGbG9jYQALAAAAAAHEAAAABm1heHAABAAGAAABCAAAACBuYW1lTkRyZgAAAeQAAABXcG9zdAADAAAAAAI8AAAAIAABAAAAAQAAnERUsl8PPPUAAwBAAAAAAAAAAAAAAAAAAAAAAAAAAAAAMACAAAAAAwACAAAAAAAAAAEAAACA/+AAAAAwAAAAAAAwAAEAAAAAAAAAAAAAAAAAAAABAAEAAAACAAQAAQAAAAAAAgAAAAAAAAAAAAAAAAAAAAAAAwAwAZAABQAEAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAEAAAAAAAAAAAAAAAPz8/PwAA4PDg8ACA/+AAAACAACAAAAAAAAAAAAAAAAAAAAAgAAAAMAAAAAAAAAAAAAIAAAADAAAAFAADAAEAAAAUAAQAIAAAAAQABAABAADg8P//AADg8P//HxEAAQAAAAAAAAAAAAsAAAABAAAAAAAwAIAAAwAAMTUzFTCAgAAAAAAAAAQANgABAAAAAAABAAQAAAABAAAAAAACAAcABAADAAEECQABAAgACwADAAEECQACAA4AE1RhbGxSZWd1bGFyAFQAYQBsAGwAUgBlAGcAdQBsAGEAcgAAAwAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA=="
    }

    SignalSpy {
        id: generations

        signalName: "generatedChanged"
    }
}
