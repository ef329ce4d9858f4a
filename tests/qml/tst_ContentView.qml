// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Morvane.Testing
import Morvane.Views

TestCase {
    id: testCase

    readonly property string noCharacterSet: "Bitte mindestens eine Zeichengruppe aktivieren."
    readonly property string randomFailure: "Der sichere Zufallsgenerator von macOS konnte nicht verwendet werden."

    property ContentView content: null

    // The alert is built for the first error.
    function alertIsShown(): bool {
        return findChild(content, "errorAlert")?.opened ?? false;
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
        randomSource.failing = false;
    }

    function switchEveryGroupOff() {
        content.model.settings.lowercase = false;
        content.model.settings.uppercase = false;
        content.model.settings.numbers = false;
        content.model.settings.symbols = false;
        tryVerify(alertIsShown);
    }

    function test_firstFrameShowsATenCharacterPassword() {
        const value = findChild(content, "value") as TextEdit;
        compare(value.text.length, 10);
        compare(value.text, content.model.generated);
        compare(value.textFormat, TextEdit.PlainText);
        verify(!alertIsShown());
    }

    function test_panelsStandSideBySide() {
        const left = findChild(content, "settingsPanel") as Item;
        const divider = findChild(content, "panelDivider") as Item;
        const right = findChild(content, "resultPanel") as Item;
        compare([left.x, left.y, left.width, left.height], [0, 0, 280, 610]);
        compare([divider.x, divider.y, divider.width, divider.height], [280, 0, 1, 610]);
        compare([right.x, right.y, right.width, right.height], [281, 0, 479, 610]);
    }

    function test_aWiderWindowWidensOnlyTheResultPanel() {
        content.width = 1200;
        content.height = 800;
        const left = findChild(content, "settingsPanel") as Item;
        const right = findChild(content, "resultPanel") as Item;
        compare([left.width, left.height], [280, 800]);
        compare([right.x, right.width, right.height], [281, 919, 800]);
    }

    function test_aNewSecretIsShownVerbatim_data() {
        return [{
                "tag": "markup",
                "separator": "<b>"
            }, {
                "tag": "entity",
                "separator": "&lt"
            }, {
                "tag": "spaces",
                "separator": "   "
            }];
    }

    function test_aNewSecretIsShownVerbatim(data) {
        content.model.settings.separator = data.separator;
        content.model.settings.mode = 1;
        const value = findChild(content, "value") as TextEdit;
        compare(value.text, content.model.generated);
        compare(value.getText(0, value.length), content.model.generated);
        compare(value.text.split(data.separator).length, 6);
    }

    function test_everyChangeOfASettingRegeneratesOnce_data() {
        return [{
                "tag": "mode",
                "value": 1
            }, {
                "tag": "length",
                "value": 30
            }, {
                "tag": "lowercase",
                "value": false
            }, {
                "tag": "uppercase",
                "value": false
            }, {
                "tag": "numbers",
                "value": false
            }, {
                "tag": "symbols",
                "value": false
            }, {
                "tag": "avoidAmbiguous",
                "value": false
            }, {
                "tag": "requireEveryGroup",
                "value": false
            }, {
                "tag": "wordCount",
                "value": 8
            }, {
                "tag": "separator",
                "value": "+"
            }, {
                "tag": "capitalizeWords",
                "value": true
            }, {
                "tag": "appendNumber",
                "value": false
            }];
    }

    function test_everyChangeOfASettingRegeneratesOnce(data) {
        content.model.settings[data.tag] = data.value;
        compare(generations.count, 1);
        compare(content.model.settings[data.tag], data.value);
    }

    function test_switchingOffAndOnRegeneratesTwice() {
        content.model.settings.symbols = false;
        content.model.settings.symbols = true;
        compare(generations.count, 2);
    }

    function test_assigningEqualSettingsDoesNotRegenerate() {
        content.model.settings.length = 10;
        content.model.settings.separator = "-";
        content.model.settings = content.model.settings;
        compare(generations.count, 0);
    }

    function test_aFailureOpensAModalAlertAndKeepsTheSecret() {
        switchEveryGroupOff();
        const shown = content.model.generated;
        const alert = findChild(content, "errorAlert") as ErrorAlert;
        verify(alert.modal);
        compare(findChild(alert.contentItem, "alertTitle").text, "Einstellung prüfen");
        compare(findChild(alert.contentItem, "alertMessage").text, noCharacterSet);
        compare(findChild(alert.contentItem, "alertButton").text, "OK");
        verify(findChild(alert.contentItem, "alertButton").activeFocus);
        compare(findChild(content, "value").text, shown);
        compare(shown.length, 10);
        compare(content.model.history[0], shown);
    }

    function test_theAlertIsDismissed_data() {
        return [{
                "tag": "Return",
                "key": Qt.Key_Return
            }, {
                "tag": "Enter",
                "key": Qt.Key_Enter
            }, {
                "tag": "Space",
                "key": Qt.Key_Space
            }, {
                "tag": "Escape",
                "key": Qt.Key_Escape
            }, {
                "tag": "button",
                "key": 0
            }];
    }

    function test_theAlertIsDismissed(data) {
        switchEveryGroupOff();
        const shown = content.model.generated;
        const generationsBefore = generations.count;
        if (data.key === 0)
            mouseClick(findChild(findChild(content, "errorAlert").contentItem, "alertButton"));
        else
            keyClick(data.key);
        tryVerify(() => !alertIsShown());
        compare(content.model.errorMessage, "");
        verify(!content.model.errorPresented);
        compare(content.model.generated, shown);
        compare(generations.count, generationsBefore);
        content.model.settings.numbers = true;
        compare(generations.count, generationsBefore + 1);
        verify(!alertIsShown());
    }

    function test_theAlertBlocksTheShortcutsOfTheWindow() {
        switchEveryGroupOff();
        content.model.settings.numbers = true;
        const generationsBefore = generations.count;
        randomSource.failing = true;
        content.model.generate();
        tryVerify(alertIsShown);
        randomSource.failing = false;
        keySequence("Ctrl+R");
        compare(generations.count, generationsBefore);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !alertIsShown());
        keySequence("Ctrl+R");
        compare(generations.count, generationsBefore + 1);
    }

    function test_aSuccessfulGenerationClosesTheAlert() {
        switchEveryGroupOff();
        content.model.settings.numbers = true;
        tryVerify(() => !alertIsShown());
        switchEveryGroupOff();
    }

    function test_aFailingRandomSourceOpensTheAlert() {
        const shown = content.model.generated;
        randomSource.failing = true;
        content.model.generate();
        tryVerify(alertIsShown);
        compare(findChild(findChild(content, "errorAlert").contentItem, "alertMessage").text, randomFailure);
        compare(findChild(content, "value").text, shown);
        compare(generations.count, 0);
        randomSource.failing = false;
        keyClick(Qt.Key_Return);
        tryVerify(() => !alertIsShown());
        content.model.generate();
        compare(generations.count, 1);
    }

    height: 800
    name: "ContentView"
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

    RandomSource {
        id: randomSource
    }
}
