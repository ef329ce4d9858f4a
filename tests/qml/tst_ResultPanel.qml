// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Morvane.Views

TestCase {
    id: testCase

    property ContentView content: null

    function shown(name: string): string {
        return findChild(content, name).text;
    }

    function rows(): list<string> {
        const texts = [];
        for (let i = 0; findChild(content, "historyRow" + i); ++i)
            texts.push(shown("historyRow" + i));
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
        content.destroy();
        content = null;
    }

    function test_ratingFollowsTheEntropy_data() {
        return [{
                "tag": "weak",
                "length": 6,
                "title": "Schwach",
                "bits": "· ca. 37 Bit"
            }, {
                "tag": "fair",
                "length": 10,
                "title": "Mittel",
                "bits": "· ca. 62 Bit"
            }, {
                "tag": "good",
                "length": 12,
                "title": "Gut",
                "bits": "· ca. 74 Bit"
            }, {
                "tag": "strong",
                "length": 15,
                "title": "Stark",
                "bits": "· ca. 93 Bit"
            }];
    }

    function test_ratingFollowsTheEntropy(data) {
        content.model.settings.length = data.length;
        compare(shown("strength"), data.title);
        compare(shown("entropy"), data.bits);
    }

    function test_anEntropyOfNothingIsShownAsZero() {
        for (const name of ["lowercase", "uppercase", "numbers", "symbols"])
            content.model.settings[name] = false;
        content.model.useFromHistory(content.model.generated);
        compare(shown("entropy"), "· ca. 0 Bit");
        compare(shown("strength"), "Schwach");
    }

    function test_valueSizeDependsOnItsLength_data() {
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

    function test_valueSizeDependsOnItsLength(data) {
        content.width = 1200;
        content.model.settings.length = data.length;
        const value = findChild(content, "value") as Text;
        compare(value.font.pixelSize, data.size);
        compare(value.fontInfo.pixelSize, data.size);
    }

    function test_theLongestPasswordIsFullyShownInTheSmallestWindow() {
        content.model.settings.length = 64;
        verify(waitForRendering(content));
        const value = findChild(content, "value") as Text;
        verify(!value.truncated);
        verify(value.lineCount <= 3);
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

    function test_aHistoryRowTakesItsSecretBack() {
        for (let i = 0; i < 4; ++i)
            content.model.generate();
        const before = rows();
        verify(waitForRendering(content));
        generations.clear();
        mouseClick(findChild(content, "historyRow2"));
        compare(shown("value"), before[2]);
        compare(rows(), before);
        compare(generations.count, 1);
    }

    function test_historyBoxIsAtMost430Wide() {
        const box = findChild(content, "history") as Item;
        compare(box.width, 419);
        content.width = 1200;
        compare(box.width, 430);
        compare(box.radius, 12);
    }

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

    SignalSpy {
        id: generations

        signalName: "generatedChanged"
    }
}
