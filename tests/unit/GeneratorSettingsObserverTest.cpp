// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "ViewModel/GeneratorSettingsObserver.h"

#include <QObject>
#include <gtest/gtest.h>

namespace {

class GeneratorSettingsObserverTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QObject::connect(&observer, &GeneratorSettingsObserver::changed, &observer,
                         [this] { ++changes; });
    }

    GeneratorSettingsObserver observer;
    int changes = 0;
};

TEST_F(GeneratorSettingsObserverTest, DoesNotSignalTheFirstRecord)
{
    GeneratorSettings settings;
    settings.length = 10;
    observer.setSettings(settings);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(observer.settings(), settings);
}

TEST_F(GeneratorSettingsObserverTest, SignalsAChangeOfTheLastField)
{
    GeneratorSettings settings;
    observer.setSettings(settings);
    settings.appendNumber = false;
    observer.setSettings(settings);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(observer.settings(), settings);
}

TEST_F(GeneratorSettingsObserverTest, DoesNotSignalAnEqualRecord)
{
    GeneratorSettings settings;
    settings.separator = QStringLiteral("\u00e9");
    observer.setSettings(settings);
    observer.setSettings(settings);
    settings.separator = QStringLiteral("e\u0301");
    observer.setSettings(settings);
    EXPECT_EQ(changes, 0);
}

TEST_F(GeneratorSettingsObserverTest, SignalsAChangeAndItsReversal)
{
    GeneratorSettings settings;
    observer.setSettings(settings);
    settings.symbols = false;
    observer.setSettings(settings);
    settings.symbols = true;
    observer.setSettings(settings);
    EXPECT_EQ(changes, 2);
}

} // namespace
