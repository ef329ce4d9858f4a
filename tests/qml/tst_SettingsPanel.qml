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

    function control(name: string): Item {
        const item = findChild(content, name) as Item;
        verify(item, name);
        return item;
    }

    function slider(name: string): Item {
        return findChild(control(name), "slider") as Item;
    }

    function number(name: string): string {
        return findChild(control(name), "number").text;
    }

    function mode(): int {
        return content.model.settings.mode; // qmllint disable type
    }

    function showPassphraseSettings() {
        content.model.settings.mode = 1;
        generations.clear();
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

    // The children of the panel from top to bottom. The settings of the mode are replaced by their
    // own children.
    function stackedChildren(): list<Item> {
        const column = control("settingsColumn");
        let found = [];
        for (const child of Array.from(column.children).filter(item => item.visible)) {
            const settings = child instanceof Loader ? child.item : child;
            if (settings instanceof PasswordSettings || settings instanceof PassphraseSettings)
                found = found.concat(Array.from(settings.children).filter(item => item.height > 0));
            else if (child.height > 0)
                found.push(child);
        }
        return found;
    }

    function test_childrenAreInOrderWithSpacing18_data() {
        return [{
                "tag": "password",
                "mode": 0,
                "names": ["title", "", "length", "", "", "avoidAmbiguous", "requireEveryGroup"]
            }, {
                "tag": "passphrase",
                "mode": 1,
                "names": ["title", "", "wordCount", "", "capitalizeWords", "appendNumber"]
            }];
    }

    function test_childrenAreInOrderWithSpacing18(data) {
        content.model.settings.mode = data.mode;
        verify(waitForItemPolished(control("settingsColumn")));
        const children = stackedChildren();
        const panel = control("settingsPanel");
        compare(children.map(child => child.objectName), data.names);
        compare(children[0].mapToItem(panel, 0, 0), Qt.point(24, 24));
        for (let i = 1; i < children.length; ++i) {
            const above = children[i - 1].mapToItem(panel, 0, children[i - 1].height).y;
            const position = children[i].mapToItem(panel, 0, 0);
            compare(position.y, above + 18, children[i].objectName);
            compare(position.x, 24);
        }
    }

    function test_spacingWithinTheGroups() {
        const length = control("length");
        compare(slider("length").y, findChild(length, "number").height + 8);
        const groups = Array.from(["lowercase", "uppercase", "numbers", "symbols"], name => control(name));
        for (let i = 1; i < groups.length; ++i)
            compare(groups[i].y, groups[i - 1].y + groups[i - 1].height + 10);
        showPassphraseSettings();
        const field = control("separator");
        compare(field.y, findChild(field.parent, "separatorTitle").height + 6);
    }

    function test_theTitleAndThePrivacyNoteHaveIconsAndPositions() {
        const title = control("title") as IconLabel;
        compare([title.icon, title.text, title.font.bold, title.font.pixelSize], ["key.horizontal.fill", "Morvane", true, 17]);
        const note = control("privacyNote");
        const text = findChild(note, "privacyText") as Text;
        compare(text.text, "Alles bleibt auf diesem Mac. Es wird nichts gespeichert oder übertragen.");
        compare(findChild(note, "privacySymbol").name, "lock.shield");
        verify(!text.truncated);
        verify(text.lineCount > 1);
        const panel = control("settingsPanel");
        compare(note.mapToItem(panel, 0, note.height).y, panel.height - 24);
        content.height = 900;
        compare(note.mapToItem(panel, 0, note.height).y, 900 - 24);
        compare(title.mapToItem(panel, 0, 0).y, 24);
    }

    function test_everythingIsReachedByTab() {
        const reached = [];
        content.forceActiveFocus();
        for (let i = 0; i < 20; ++i) {
            keyClick(Qt.Key_Tab);
            const item = content.Window.activeFocusItem;
            const name = item.text ?? item.Accessible.name;
            if (reached.includes(name))
                break;
            reached.push(name);
        }
        compare(reached.slice(0, 9), ["Passwort", "Länge", "Kleinbuchstaben", "Großbuchstaben", "Zahlen", "Sonderzeichen", "Ähnliche Zeichen vermeiden", "Jede Gruppe muss vorkommen", content.model.generated]);
        compare(reached.slice(9, 11), ["Neu erzeugen", "Kopieren"]);
    }

    function test_thePickerSwitchesTheMode() {
        const segments = content.model.modeTitles;
        compare(segments, ["Passwort", "Passphrase"]);
        const picker = control("modePicker");
        verify(!findChild(content, "wordCount"), "the passphrase settings do not exist in password mode");
        mouseClick(picker, picker.width * 0.75);
        compare(mode(), 1);
        compare(generations.count, 1);
        compare(content.model.generated.split("-").length, 6);
        verify(control("wordCount").visible);
        tryVerify(() => !findChild(content, "length"), 5000, "the password settings are destroyed");
        mouseClick(picker, picker.width * 0.75);
        compare(generations.count, 1);
        mouseClick(picker, picker.width * 0.25);
        compare(mode(), 0);
        compare(generations.count, 2);
        tryVerify(() => !findChild(content, "wordCount"), 5000, "the passphrase settings are destroyed");
        verify(control("length").visible);
    }

    function test_thePickerFollowsTheArrowKeys() {
        const picker = control("modePicker");
        mouseClick(picker, picker.width * 0.25);
        keyClick(Qt.Key_Left);
        compare(mode(), 0);
        keyClick(Qt.Key_Right);
        compare(mode(), 1);
        keyClick(Qt.Key_Right);
        compare(mode(), 1);
        keyClick(Qt.Key_Left);
        compare(mode(), 0);
        compare(generations.count, 2);
    }

    function test_switchingTheModeKeepsTheOtherModesSettings() {
        content.model.settings.length = 33;
        content.model.settings.symbols = false;
        content.model.settings.mode = 1;
        content.model.settings.wordCount = 7;
        content.model.settings.mode = 0;
        compare(number("length"), "33");
        compare(control("symbols").checked, false);
        content.model.settings.mode = 1;
        compare(number("wordCount"), "7");
    }

    function test_allDigitsOfTheNumberHaveTheSameWidth() {
        const digits = () => Array.from(findChild(control("length"), "number").children).filter(item => item instanceof Text && item.visible);
        content.model.settings.length = 11;
        const ones = digits();
        compare(ones.map(digit => digit.text), ["1", "1"]);
        metrics.font = ones[0].font;
        const widths = Array.from("0123456789", digit => metrics.advanceWidth(digit));
        for (const digit of ones)
            compare(digit.width, Math.max(...widths));
        const width = findChild(control("length"), "number").width;
        content.model.settings.length = 22;
        compare(digits().map(digit => digit.text), ["2", "2"]);
        compare(findChild(control("length"), "number").width, width);
        content.model.settings.length = 9;
        compare(digits().map(digit => digit.text), ["9"]);
    }

    FontMetrics {
        id: metrics
    }

    function test_sliders_data() {
        return [{
                "tag": "length",
                "mode": 0,
                "from": 8,
                "start": 10,
                "to": 64
            }, {
                "tag": "wordCount",
                "mode": 1,
                "from": 3,
                "start": 5,
                "to": 8
            }];
    }

    function test_sliders(data) {
        content.model.settings.mode = data.mode;
        generations.clear();
        slider(data.tag).forceActiveFocus();
        compare(number(data.tag), String(data.start));
        keyClick(Qt.Key_Right);
        compare(content.model.settings[data.tag], data.start + 1);
        compare(number(data.tag), String(data.start + 1));
        compare(generations.count, 1);
        keyClick(Qt.Key_Left);
        compare(content.model.settings[data.tag], data.start);
        keyClick(Qt.Key_End);
        compare(content.model.settings[data.tag], data.to);
        compare(number(data.tag), String(data.to));
        compare(generations.count, 3);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_End);
        compare(generations.count, 3);
        keyClick(Qt.Key_Home);
        compare(content.model.settings[data.tag], data.from);
        keyClick(Qt.Key_Left);
        compare(content.model.settings[data.tag], data.from);
        compare(generations.count, 4);
    }

    function test_slidersDoNotChangeASettingOutsideTheirRange() {
        content.model.settings.length = 6;
        compare(content.model.settings.length, 6);
        compare(number("length"), "6");
        compare(generations.count, 1);
        content.model.settings.length = 70;
        compare(content.model.settings.length, 70);
        compare(generations.count, 2);
    }

    function test_draggingASliderRegeneratesOncePerNewValue() {
        const lengthSlider = slider("length");
        const values = [];
        const record = () => values.push(content.model.settings.length);
        content.model.generatedChanged.connect(record);
        mousePress(lengthSlider, 9 + (lengthSlider.width - 18) * 2 / 56, lengthSlider.height / 2);
        for (let x = 0; x <= lengthSlider.width; ++x)
            mouseMove(lengthSlider, x, lengthSlider.height / 2);
        mouseRelease(lengthSlider, lengthSlider.width, lengthSlider.height / 2);
        content.model.generatedChanged.disconnect(record);
        compare(content.model.settings.length, 64);
        compare(content.model.generated.length, 64);
        for (let i = 1; i < values.length; ++i)
            verify(values[i] !== values[i - 1], values);
        const seen = values.slice(values.indexOf(8));
        compare(seen, Array.from({
                    "length": 57
                }, (unused, i) => 8 + i));
    }

    function test_switches_data() {
        return [{
                "tag": "lowercase",
                "mode": 0,
                "label": "Kleinbuchstaben"
            }, {
                "tag": "uppercase",
                "mode": 0,
                "label": "Großbuchstaben"
            }, {
                "tag": "numbers",
                "mode": 0,
                "label": "Zahlen"
            }, {
                "tag": "symbols",
                "mode": 0,
                "label": "Sonderzeichen"
            }, {
                "tag": "avoidAmbiguous",
                "mode": 0,
                "label": "Ähnliche Zeichen vermeiden"
            }, {
                "tag": "requireEveryGroup",
                "mode": 0,
                "label": "Jede Gruppe muss vorkommen"
            }, {
                "tag": "capitalizeWords",
                "mode": 1,
                "label": "Wörter groß beginnen"
            }, {
                "tag": "appendNumber",
                "mode": 1,
                "label": "Zahl anhängen"
            }];
    }

    function test_switches(data) {
        content.model.settings.mode = data.mode;
        generations.clear();
        const switchItem = control(data.tag);
        const before = content.model.settings[data.tag];
        // Controls created by the change of the mode are positioned when their column is laid out.
        if (isPolishScheduled(switchItem.parent))
            verify(waitForItemPolished(switchItem.parent));
        compare(switchItem.text, data.label);
        compare(switchItem.checked, before);
        mouseClick(switchItem);
        compare(content.model.settings[data.tag], !before);
        compare(generations.count, 1);
        switchItem.forceActiveFocus();
        keyClick(Qt.Key_Space);
        compare(content.model.settings[data.tag], before);
        compare(generations.count, 2);
        content.model.settings[data.tag] = !before;
        compare(switchItem.checked, !before);
    }

    function test_allGroupsCanBeSwitchedOff() {
        for (const name of ["lowercase", "uppercase", "numbers", "symbols"])
            mouseClick(control(name));
        tryVerify(() => findChild(content, "errorAlert").opened);
        keyClick(Qt.Key_Return);
        tryVerify(() => !findChild(content, "errorAlert").visible);
        mouseClick(control("numbers"));
        verify(!content.model.errorPresented);
        verify(/^[2-9]{10}$/.test(content.model.generated), content.model.generated);
    }

    function test_separatorKeepsThreeGraphemeClusters_data() {
        return [{
                "tag": "six letters",
                "typed": "abcdef",
                "kept": "abc",
                "regenerations": 2
            }, {
                "tag": "four hyphens",
                "typed": "----",
                "kept": "---",
                "regenerations": 2
            }, {
                "tag": "two hyphens",
                "typed": "--",
                "kept": "--",
                "regenerations": 1
            }, {
                "tag": "dot between spaces",
                "typed": " · ",
                "kept": " · ",
                "regenerations": 1
            }, {
                "tag": "nothing",
                "typed": "",
                "kept": "",
                "regenerations": 1
            }, {
                "tag": "flags",
                "typed": "🇩🇪🇫🇷🇮🇹🇪🇸",
                "kept": "🇩🇪🇫🇷🇮🇹",
                "regenerations": 2
            }, {
                "tag": "emoji with modifiers",
                "typed": "👍🏽👍🏽👍🏽",
                "kept": "👍🏽👍🏽👍🏽",
                "regenerations": 1
            }, {
                "tag": "combining marks",
                "typed": "e\u0301o\u0308a\u0302u",
                "kept": "e\u0301o\u0308a\u0302",
                "regenerations": 2
            }];
    }

    function test_separatorKeepsThreeGraphemeClusters(data) {
        showPassphraseSettings();
        content.model.settings.separator = data.typed;
        compare(content.model.settings.separator, data.kept);
        compare(control("separator").text, data.kept);
        compare(generations.count, data.regenerations);
        compare(content.model.generated.split(data.kept).length > 1, true);
    }

    function test_typingAFourthCharacterLeavesThree() {
        showPassphraseSettings();
        const field = control("separator") as TextField;
        compare(field.placeholderText, "Trennzeichen");
        field.forceActiveFocus();
        field.selectAll();
        keyClick(Qt.Key_Delete);
        compare(content.model.settings.separator, "");
        for (const key of [Qt.Key_A, Qt.Key_B, Qt.Key_C, Qt.Key_D])
            keyClick(key);
        compare(field.text, "abc");
        compare(content.model.settings.separator, "abc");
        keyClick(Qt.Key_Backspace);
        compare(content.model.settings.separator, "ab");
    }

    function test_anInputMethodEntersASingleLine() {
        showPassphraseSettings();
        const field = control("separator") as TextField;
        field.forceActiveFocus();
        field.selectAll();
        system.commitText(field, "é\n\u2028\t+abc");
        compare(content.model.settings.separator, "é +");
        compare(field.text, "é +");
    }

    height: 800
    name: "SettingsPanel"
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

    SignalSpy {
        id: generations

        signalName: "generatedChanged"
    }
}
