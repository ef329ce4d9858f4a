// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Morvane.Testing
import Morvane.Views
import Morvane.Views.Controls

TestCase {
    id: testCase

    property AboutView view: null
    // The free space above the column at the default text size.
    property real defaultTop

    function init() {
        view = viewComponent.createObject(testCase) as AboutView;
        verify(waitForRendering(view));
        defaultTop = column().y;
    }

    function cleanup() {
        system.setAppearance(false, false);
        system.setFontPixelSize(defaultFontPixelSize);
        view.destroy();
        view = null;
    }

    function column(): Column {
        return findChild(view, "aboutColumn") as Column;
    }

    function lines(): list<Item> {
        return Array.from(column().children).filter(child => child instanceof Text);
    }

    function test_size() {
        compare([view.implicitWidth, view.implicitHeight], [370, 390]);
        compare([view.width, view.height], [370, 390]);
    }

    function test_childrenFromTopToBottom() {
        const children = Array.from(column().children);
        compare(children.map(child => child instanceof Icon ? "icon" : child instanceof Text ? child.text : child.objectName), ["icon", "Morvane", "Version 1.1", "Sichere Passwörter. Lokal geschmiedet.", "aboutDivider", "Keine Cloud, keine Konten, keine Passwortspeicherung.", "Entwickelt von\nMorvane-Projekt – Morvane-Team", "© 2026 Morvane-Projekt"]);
        for (let i = 1; i < children.length; ++i)
            compare(children[i].y - children[i - 1].y - children[i - 1].height, 14);
    }

    function test_everythingIsCentred() {
        compare(column().x, 34);
        compare(column().width, 370 - 2 * 34);
        fuzzyCompare(column().y, (390 - column().height) / 2, 0.5);
        verify(column().y >= 34);
        for (const child of Array.from(column().children)) {
            fuzzyCompare(child.x + child.width / 2, column().width / 2, 0.5);
            if (child instanceof Text)
                compare(child.horizontalAlignment, Text.AlignHCenter);
        }
    }

    function test_icon() {
        const icon = findChild(view, "aboutIcon") as Item;
        compare([icon.width, icon.height], [96, 96]);
        const image = grabImage(testCase);
        const bounds = icon.mapToItem(testCase, 0, 0, icon.width, icon.height);
        const colors = new Set();
        for (let y = bounds.top; y < bounds.bottom; y += 2) {
            for (let x = bounds.left; x < bounds.right; x += 2)
                colors.add(String(image.pixel(x, y)));
        }
        verify(colors.size > 100, "colours: " + colors.size);
    }

    function test_styles_data() {
        return [{
                "tag": "name",
                "line": 0,
                "size": 22,
                "weight": Font.Bold,
                "color": Theme.text
            }, {
                "tag": "version",
                "line": 1,
                "size": 13,
                "weight": Font.Normal,
                "color": Theme.secondaryText
            }, {
                "tag": "tagline",
                "line": 2,
                "size": 13,
                "weight": Font.DemiBold,
                "color": Theme.text
            }, {
                "tag": "privacy statement",
                "line": 3,
                "size": 11,
                "weight": Font.Normal,
                "color": Theme.secondaryText
            }, {
                "tag": "credit",
                "line": 4,
                "size": 11,
                "weight": Font.Medium,
                "color": Theme.text
            }, {
                "tag": "rights",
                "line": 5,
                "size": 11,
                "weight": Font.Normal,
                "color": Theme.tertiaryText
            }];
    }

    function test_styles(data) {
        const line = lines()[data.line] as Text;
        compare([line.font.pixelSize, line.font.weight], [data.size, data.weight]);
        compare(line.color, data.color);
    }

    function test_divider() {
        const divider = findChild(view, "aboutDivider") as Item;
        compare([divider.width, divider.height], [260, 1]);
    }

    function test_aLongCreditWrapsAndTheViewKeepsItsSize() {
        const credit = findChild(view, "aboutCredit") as Text;
        compare(credit.lineCount, 2);
        credit.text = "Entwickelt von\n" + "einem Projekt mit einem sehr langen Namen – und vielen, die daran mitwirken";
        verify(waitForItemPolished(column()));
        verify(credit.lineCount > 2);
        verify(!credit.truncated);
        verify(credit.contentWidth <= credit.width);
        compare([view.implicitWidth, view.implicitHeight], [370, 390]);
        fuzzyCompare(column().y, (390 - column().height) / 2, 0.5);
    }

    function test_nothingIsCutInLargeText_data() {
        return [{
                "tag": "100 %",
                "pixels": 13
            }, {
                "tag": "150 %",
                "pixels": 20
            }, {
                "tag": "200 %",
                "pixels": 26
            }];
    }

    function test_nothingIsCutInLargeText(data) {
        system.setFontPixelSize(data.pixels);
        verify(waitForItemPolished(column()));
        verify(column().y >= 0);
        for (const line of Array.from(lines()))
            verify(line.contentWidth <= line.width + 0.5, line.text);
    }

    function test_everythingGrowsWithTheText_data() {
        return [{
                "tag": "150 %",
                "pixels": 20
            }, {
                "tag": "200 %",
                "pixels": 26
            }];
    }

    function test_everythingGrowsWithTheText(data) {
        const scale = data.pixels / 13;
        system.setFontPixelSize(data.pixels);
        verify(waitForItemPolished(column()));
        const icon = findChild(view, "aboutIcon") as Item;
        const divider = findChild(view, "aboutDivider") as Item;
        for (const [length, base] of [[view.width, 370], [view.height, 390], [icon.width, 96], [icon.height, 96], [divider.width, 260], [column().spacing, 14], [column().x, 34]])
            fuzzyCompare(length, base * scale, 0.51);
        // The free space above and below the column grows as well.
        fuzzyCompare(column().y / scale, defaultTop, 4);
        fuzzyCompare(view.height - column().y - column().height, column().y, 1);
    }

    readonly property int defaultFontPixelSize: 12

    height: 900
    name: "AboutView"
    visible: true
    when: windowShown
    width: 900

    Component {
        id: viewComponent

        AboutView {
            height: implicitHeight
            width: implicitWidth
        }
    }

    FakeSystem {
        id: system
    }
}
