// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "ViewModel/GeneratorViewModel.h"

#include "Model/GeneratorError.h"
#include "ScriptedRandom.h"
#include "ViewModel/GeneratorSettingsObserver.h"

#include <QObject>
#include <QStringList>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<GeneratorViewModel>);
static_assert(!std::is_copy_assignable_v<GeneratorViewModel>);

namespace {

using testing::ElementsAre;

constexpr std::uint64_t indexOfEule = 15;
constexpr std::uint64_t indexOfMond = 41;
constexpr std::uint64_t indexOfTau = 62;

/// One word a secret, and so one draw: the drawn index tells the secret.
GeneratorSettings singleWord()
{
    GeneratorSettings settings;
    settings.mode = GeneratorMode::passphrase;
    settings.wordCount = 1;
    settings.appendNumber = false;
    return settings;
}

GeneratorSettings withoutGroups()
{
    GeneratorSettings settings;
    settings.lowercase = false;
    settings.uppercase = false;
    settings.numbers = false;
    settings.symbols = false;
    return settings;
}

class GeneratorViewModelTest : public testing::Test
{
protected:
    void generateWord(std::uint64_t index)
    {
        const ScriptedRandom draws({index});
        model.generate();
    }

    /// Writes down every signal from now on, with what an observer sees at that moment.
    void record()
    {
        QObject::connect(&model, &GeneratorViewModel::settingsChanged, &model,
                         [this] { log << QStringLiteral("settings"); });
        QObject::connect(&model, &GeneratorViewModel::generatedChanged, &model,
                         [this] { log << QStringLiteral("generated ") + model.generated(); });
        QObject::connect(&model, &GeneratorViewModel::entropyChanged, &model,
                         [this] { log << QStringLiteral("entropy"); });
        QObject::connect(&model, &GeneratorViewModel::errorMessageChanged, &model, [this] {
            log << (model.errorMessage() ? QStringLiteral("error") : QStringLiteral("no error"));
        });
        QObject::connect(&model, &GeneratorViewModel::historyChanged, &model,
                         [this] { log << QStringLiteral("history"); });
        QObject::connect(&model, &GeneratorViewModel::copiedChanged, &model,
                         [this] { log << QStringLiteral("copied"); });
    }

    GeneratorViewModel model;
    QStringList log;
};

TEST_F(GeneratorViewModelTest, StartsWithAPasswordOfTenCharacters)
{
    EXPECT_EQ(model.settings().length, 10);
    GeneratorSettings expected;
    expected.length = 10;
    EXPECT_EQ(model.settings(), expected);
    EXPECT_EQ(model.generated().size(), 10);
    EXPECT_DOUBLE_EQ(model.entropy(), 10 * std::log2(75.0));
    EXPECT_EQ(model.strength(), PasswordStrength::fair);
    EXPECT_THAT(model.history(), ElementsAre(model.generated()));
    EXPECT_EQ(model.errorMessage(), std::nullopt);
    EXPECT_FALSE(model.errorPresented());
    EXPECT_FALSE(model.copied());
}

TEST_F(GeneratorViewModelTest, DrawsItsFirstPasswordOnceAndByTheStartingLength)
{
    const ScriptedRandom draws([](std::uint64_t& value) {
        value = 0;
        return 0;
    });
    const GeneratorViewModel fresh;
    EXPECT_EQ(draws.calls(), 2 * 10 - 1);
}

TEST_F(GeneratorViewModelTest, StartsWithAnErrorWhereTheRandomSourceFails)
{
    const ScriptedRandom draws([](std::uint64_t&) { return 5; });
    const GeneratorViewModel fresh;
    EXPECT_EQ(fresh.errorMessage(), GeneratorError::randomFailure(5).errorDescription());
    EXPECT_EQ(fresh.generated(), QString());
    EXPECT_EQ(fresh.entropy(), 0);
    EXPECT_EQ(fresh.history(), QStringList());
}

TEST_F(GeneratorViewModelTest, SignalsASuccessInTheOrderOfItsAssignments)
{
    model.setSettings(singleWord());
    record();
    generateWord(indexOfEule);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("generated eule"), QStringLiteral("entropy"),
                                 QStringLiteral("no error"), QStringLiteral("history")));
}

TEST_F(GeneratorViewModelTest, SignalsValuesThatStayTheSameToo)
{
    model.setSettings(singleWord());
    generateWord(indexOfEule);
    record();
    generateWord(indexOfEule);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("generated eule"), QStringLiteral("entropy"),
                                 QStringLiteral("no error")));

    log.clear();
    model.setSettings(model.settings());
    EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));

    log.clear();
    model.useFromHistory(model.generated());
    EXPECT_THAT(log, ElementsAre(QStringLiteral("generated eule"), QStringLiteral("entropy")));
}

TEST_F(GeneratorViewModelTest, SignalsAFailureAlone)
{
    model.setSettings(withoutGroups());
    record();
    model.generate();
    EXPECT_THAT(log, ElementsAre(QStringLiteral("error")));
}

TEST_F(GeneratorViewModelTest, ShowsTheNewSecretBeforeItIsRated)
{
    model.setSettings(singleWord());
    const double before = model.entropy();
    std::optional<double> seen;
    QObject::connect(&model, &GeneratorViewModel::generatedChanged, &model,
                     [&] { seen = model.entropy(); });
    generateWord(indexOfEule);
    EXPECT_EQ(seen, before);
    EXPECT_DOUBLE_EQ(model.entropy(), std::log2(76.0));
}

TEST_F(GeneratorViewModelTest, RatesByTheSettingsAtThatMoment)
{
    model.setSettings(singleWord());
    GeneratorSettings twoWords = singleWord();
    twoWords.wordCount = 2;
    QObject::connect(&model, &GeneratorViewModel::generatedChanged, &model,
                     [&] { model.setSettings(twoWords); });
    generateWord(indexOfEule);
    EXPECT_DOUBLE_EQ(model.entropy(), 2 * std::log2(76.0));
}

TEST_F(GeneratorViewModelTest, KeepsTheNewestSixSecrets)
{
    model.setSettings(singleWord());
    for (std::uint64_t index = 0; index < 7; ++index)
        generateWord(index);
    EXPECT_THAT(model.history(), ElementsAre(QStringLiteral("birke"), QStringLiteral("beere"),
                                             QStringLiteral("bambus"), QStringLiteral("atlas"),
                                             QStringLiteral("apfel"), QStringLiteral("anker")));
}

TEST_F(GeneratorViewModelTest, DoesNotRememberAnAdjacentRepeat)
{
    model.setSettings(singleWord());
    generateWord(indexOfEule);
    const QStringList before = model.history();
    generateWord(indexOfEule);
    EXPECT_EQ(model.history(), before);
    EXPECT_EQ(model.generated(), QStringLiteral("eule"));
}

TEST_F(GeneratorViewModelTest, RemembersARepeatThatIsNotAdjacent)
{
    model.setSettings(singleWord());
    generateWord(indexOfEule);
    generateWord(indexOfMond);
    generateWord(indexOfEule);
    EXPECT_EQ(model.history().first(3), (QStringList{QStringLiteral("eule"), QStringLiteral("mond"),
                                                     QStringLiteral("eule")}));
}

TEST_F(GeneratorViewModelTest, ComparesRepeatsByTheirExactText)
{
    GeneratorSettings settings = singleWord();
    settings.wordCount = 2;
    // The same separator, composed and decomposed: canonically equivalent, but not the same text.
    settings.separator = QStringLiteral("\u00e9");
    model.setSettings(settings);
    const ScriptedRandom draws({indexOfEule, indexOfEule, indexOfEule, indexOfEule});
    model.generate();
    settings.separator = QStringLiteral("e\u0301");
    model.setSettings(settings);
    model.generate();
    EXPECT_EQ(model.history().first(2),
              (QStringList{QStringLiteral("eulee\u0301eule"), QStringLiteral("eule\u00e9eule")}));
}

TEST_F(GeneratorViewModelTest, KeepsTheLastSecretWhenASettingIsRejected)
{
    const QString generated = model.generated();
    const double entropy = model.entropy();
    const QStringList history = model.history();

    model.setSettings(withoutGroups());
    model.generate();
    EXPECT_EQ(model.errorMessage(), GeneratorError::noCharacterSet().errorDescription());
    EXPECT_TRUE(model.errorPresented());
    EXPECT_EQ(model.generated(), generated);
    EXPECT_EQ(model.entropy(), entropy);
    EXPECT_EQ(model.history(), history);

    model.setSettings(GeneratorSettings());
    model.generate();
    EXPECT_EQ(model.errorMessage(), std::nullopt);
    EXPECT_EQ(model.generated().size(), 20);
}

TEST_F(GeneratorViewModelTest, NamesTheSmallestLengthThatWouldDo)
{
    GeneratorSettings settings;
    settings.length = 3;
    model.setSettings(settings);
    model.generate();
    EXPECT_EQ(
        model.errorMessage(),
        QStringLiteral("Die Länge muss mindestens 4 betragen, damit jede Gruppe vorkommen kann."));
}

TEST_F(GeneratorViewModelTest, KeepsTheLastSecretWhenTheRandomSourceFails)
{
    const QString generated = model.generated();
    const QStringList history = model.history();
    {
        const ScriptedRandom draws([](std::uint64_t&) { return 38; });
        model.generate();
    }
    EXPECT_EQ(model.errorMessage(), GeneratorError::randomFailure(38).errorDescription());
    EXPECT_EQ(model.generated(), generated);
    EXPECT_EQ(model.history(), history);
}

TEST_F(GeneratorViewModelTest, TakesBackAnEarlierSecretUnderTheCurrentSettings)
{
    model.setSettings(singleWord());
    generateWord(indexOfEule);
    generateWord(indexOfMond);
    generateWord(indexOfTau);
    const QStringList history = model.history();

    const GeneratorSettings passwords;
    model.setSettings(passwords);
    model.useFromHistory(model.history().at(2));
    EXPECT_EQ(model.generated(), QStringLiteral("eule"));
    EXPECT_DOUBLE_EQ(model.entropy(), 4 * std::log2(75.0));
    EXPECT_EQ(model.strength(), PasswordStrength::weak);
    EXPECT_EQ(model.history(), history);
}

TEST_F(GeneratorViewModelTest, TakingBackASecretLeavesTheErrorMessage)
{
    model.setSettings(withoutGroups());
    model.generate();
    model.useFromHistory(model.history().constFirst());
    EXPECT_TRUE(model.errorPresented());
    EXPECT_EQ(model.entropy(), 0);
}

TEST_F(GeneratorViewModelTest, ChangingSettingsGeneratesNothing)
{
    const QString generated = model.generated();
    const QStringList history = model.history();
    record();
    model.setSettings(singleWord());
    EXPECT_EQ(model.generated(), generated);
    EXPECT_EQ(model.history(), history);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));
}

TEST_F(GeneratorViewModelTest, DismissingTheErrorClearsTheMessageAndNothingElse)
{
    const QString generated = model.generated();
    model.setSettings(withoutGroups());
    model.generate();
    record();
    model.setErrorPresented(false);
    EXPECT_EQ(model.errorMessage(), std::nullopt);
    EXPECT_EQ(model.errorText(), QString());
    EXPECT_EQ(model.generated(), generated);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("no error")));
}

TEST_F(GeneratorViewModelTest, AnErrorCannotBePresentedFromOutside)
{
    record();
    model.setErrorPresented(true);
    EXPECT_FALSE(model.errorPresented());
    EXPECT_THAT(log, ElementsAre());
}

TEST_F(GeneratorViewModelTest, ModeIndexIsTheModesPlaceInTheTitles)
{
    EXPECT_EQ(model.modeIndex(), 0);
    EXPECT_FALSE(model.isPassphrase());
    model.setSettings(singleWord());
    EXPECT_EQ(model.modeIndex(), 1);
    EXPECT_TRUE(model.isPassphrase());
    EXPECT_EQ(GeneratorViewModel::modeTitles().at(model.modeIndex()),
              rawValue(model.settings().mode));
}

TEST_F(GeneratorViewModelTest, SettingTheModeIndexChangesTheModeAlone)
{
    GeneratorSettings expected = singleWord();
    model.setSettings(expected);
    record();
    for (const GeneratorMode mode : allGeneratorModes) {
        log.clear();
        model.setModeIndex(mode == GeneratorMode::password ? 0 : 1);
        expected.mode = mode;
        EXPECT_EQ(model.settings(), expected);
        EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));
    }
}

TEST_F(GeneratorViewModelTest, IsLongFromThe39thGraphemeCluster)
{
    const auto isLong = [this](const QString& value) {
        model.useFromHistory(value);
        return model.isLong();
    };
    EXPECT_FALSE(isLong(QString()));
    EXPECT_FALSE(isLong(QString(38, QLatin1Char('x'))));
    EXPECT_TRUE(isLong(QString(39, QLatin1Char('x'))));
    const QString decomposed = QStringLiteral("e\u0301");
    EXPECT_FALSE(isLong(decomposed.repeated(38)));
    EXPECT_TRUE(isLong(decomposed.repeated(39)));
}

TEST_F(GeneratorViewModelTest, LimitsTheSeparatorToThreeGraphemeClusters)
{
    // The joined emoji are a single grapheme cluster of eight UTF-16 units.
    const QString family = QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467");
    GeneratorSettings settings = singleWord();
    settings.separator = QStringLiteral("a") + family + QStringLiteral("e\u0301") + family;
    model.setSettings(settings);
    record();
    model.limitSeparator();
    settings.separator = QStringLiteral("a") + family + QStringLiteral("e\u0301");
    EXPECT_EQ(model.settings(), settings);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));
}

TEST_F(GeneratorViewModelTest, LeavesASeparatorOfUpToThreeGraphemeClustersAlone)
{
    record();
    for (const QString& separator :
         {QString(), QStringLiteral("-"), QStringLiteral("abc"), QStringLiteral("e\u0301bc")}) {
        GeneratorSettings settings = singleWord();
        settings.separator = separator;
        model.setSettings(settings);
        log.clear();
        model.limitSeparator();
        EXPECT_EQ(model.settings().separator, separator);
        EXPECT_THAT(log, ElementsAre());
    }
}

TEST_F(GeneratorViewModelTest, TheObserverSeesTheLongSeparatorAndTheShortenedOne)
{
    GeneratorSettingsObserver observer;
    int changes = 0;
    QObject::connect(&observer, &GeneratorSettingsObserver::changed, &model,
                     [&changes] { ++changes; });
    GeneratorSettings settings = singleWord();
    model.setSettings(settings);
    observer.setSettings(model.settings());
    QObject::connect(&model, &GeneratorViewModel::settingsChanged, &observer,
                     [&] { observer.setSettings(model.settings()); });

    settings.separator = QStringLiteral("abcd");
    model.setSettings(settings);
    EXPECT_EQ(changes, 1);
    model.limitSeparator();
    EXPECT_EQ(changes, 2);
    model.limitSeparator();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(model.settings().separator, QStringLiteral("abc"));
}

TEST_F(GeneratorViewModelTest, StrengthFollowsTheEntropy)
{
    GeneratorSettings settings;
    settings.length = 15;
    model.setSettings(settings);
    model.generate();
    EXPECT_EQ(model.strength(), PasswordStrength::strong);
    EXPECT_EQ(model.strengthLevel(), 3);
    EXPECT_EQ(model.strengthTitle(), QStringLiteral("Stark"));
    model.setSettings(singleWord());
    generateWord(indexOfEule);
    EXPECT_EQ(model.strength(), PasswordStrength::weak);
}

} // namespace
