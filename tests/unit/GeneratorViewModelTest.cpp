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

/// Passphrases of a single word, so that the only drawn index selects the secret.
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
        viewModel.generate();
    }

    /// Logs every later signal, with the new secret or the presence of an error message.
    void record()
    {
        QObject::connect(&viewModel, &GeneratorViewModel::settingsChanged, &viewModel,
                         [this] { log << QStringLiteral("settings"); });
        QObject::connect(&viewModel, &GeneratorViewModel::generatedChanged, &viewModel,
                         [this] { log << QStringLiteral("generated ") + viewModel.generated(); });
        QObject::connect(&viewModel, &GeneratorViewModel::entropyChanged, &viewModel,
                         [this] { log << QStringLiteral("entropy"); });
        QObject::connect(&viewModel, &GeneratorViewModel::errorMessageChanged, &viewModel, [this] {
            log << (viewModel.errorMessage() ? QStringLiteral("error")
                                             : QStringLiteral("no error"));
        });
        QObject::connect(&viewModel, &GeneratorViewModel::historyChanged, &viewModel,
                         [this] { log << QStringLiteral("history"); });
        QObject::connect(&viewModel, &GeneratorViewModel::copiedChanged, &viewModel,
                         [this] { log << QStringLiteral("copied"); });
    }

    GeneratorViewModel viewModel;
    QStringList log;
};

TEST_F(GeneratorViewModelTest, StartsWithAPasswordOfTenCharacters)
{
    EXPECT_EQ(viewModel.settings().length, 10);
    GeneratorSettings expected;
    expected.length = 10;
    EXPECT_EQ(viewModel.settings(), expected);
    EXPECT_EQ(viewModel.generated().size(), 10);
    EXPECT_DOUBLE_EQ(viewModel.entropy(), 10 * std::log2(75.0));
    EXPECT_EQ(viewModel.strength(), PasswordStrength::fair);
    EXPECT_THAT(viewModel.history(), ElementsAre(viewModel.generated()));
    EXPECT_EQ(viewModel.errorMessage(), std::nullopt);
    EXPECT_FALSE(viewModel.errorPresented());
    EXPECT_FALSE(viewModel.copied());
}

TEST_F(GeneratorViewModelTest, DrawsItsFirstPasswordOnceWithTheStartingLength)
{
    const ScriptedRandom draws([](std::uint64_t& value) {
        value = 0;
        return 0;
    });
    const GeneratorViewModel fresh;
    EXPECT_EQ(draws.calls(), 2 * 10 - 1);
}

TEST_F(GeneratorViewModelTest, StartsWithAnErrorIfTheRandomSourceFails)
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
    viewModel.setSettings(singleWord());
    record();
    generateWord(indexOfEule);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("generated eule"), QStringLiteral("entropy"),
                                 QStringLiteral("no error"), QStringLiteral("history")));
}

TEST_F(GeneratorViewModelTest, SignalsUnchangedValuesToo)
{
    viewModel.setSettings(singleWord());
    generateWord(indexOfEule);
    record();
    generateWord(indexOfEule);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("generated eule"), QStringLiteral("entropy"),
                                 QStringLiteral("no error")));

    log.clear();
    viewModel.setSettings(viewModel.settings());
    EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));

    log.clear();
    viewModel.useFromHistory(viewModel.generated());
    EXPECT_THAT(log, ElementsAre(QStringLiteral("generated eule"), QStringLiteral("entropy")));
}

TEST_F(GeneratorViewModelTest, SignalsOnlyTheErrorOfAFailure)
{
    viewModel.setSettings(withoutGroups());
    record();
    viewModel.generate();
    EXPECT_THAT(log, ElementsAre(QStringLiteral("error")));
}

TEST_F(GeneratorViewModelTest, SignalsTheNewSecretBeforeEstimatingItsEntropy)
{
    viewModel.setSettings(singleWord());
    const double before = viewModel.entropy();
    std::optional<double> seen;
    QObject::connect(&viewModel, &GeneratorViewModel::generatedChanged, &viewModel,
                     [&] { seen = viewModel.entropy(); });
    generateWord(indexOfEule);
    EXPECT_EQ(seen, before);
    EXPECT_DOUBLE_EQ(viewModel.entropy(), std::log2(76.0));
}

TEST_F(GeneratorViewModelTest, EstimatesTheEntropyWithSettingsThatASlotChanged)
{
    viewModel.setSettings(singleWord());
    GeneratorSettings twoWords = singleWord();
    twoWords.wordCount = 2;
    QObject::connect(&viewModel, &GeneratorViewModel::generatedChanged, &viewModel,
                     [&] { viewModel.setSettings(twoWords); });
    generateWord(indexOfEule);
    EXPECT_DOUBLE_EQ(viewModel.entropy(), 2 * std::log2(76.0));
}

TEST_F(GeneratorViewModelTest, KeepsTheNewestSixSecrets)
{
    viewModel.setSettings(singleWord());
    for (std::uint64_t index = 0; index < 7; ++index)
        generateWord(index);
    EXPECT_THAT(viewModel.history(), ElementsAre(QStringLiteral("birke"), QStringLiteral("beere"),
                                                 QStringLiteral("bambus"), QStringLiteral("atlas"),
                                                 QStringLiteral("apfel"), QStringLiteral("anker")));
}

TEST_F(GeneratorViewModelTest, DoesNotRememberAnAdjacentRepeat)
{
    viewModel.setSettings(singleWord());
    generateWord(indexOfEule);
    const QStringList before = viewModel.history();
    generateWord(indexOfEule);
    EXPECT_EQ(viewModel.history(), before);
    EXPECT_EQ(viewModel.generated(), QStringLiteral("eule"));
}

TEST_F(GeneratorViewModelTest, RemembersARepeatThatIsNotAdjacent)
{
    viewModel.setSettings(singleWord());
    generateWord(indexOfEule);
    generateWord(indexOfMond);
    generateWord(indexOfEule);
    EXPECT_EQ(
        viewModel.history().first(3),
        (QStringList{QStringLiteral("eule"), QStringLiteral("mond"), QStringLiteral("eule")}));
}

TEST_F(GeneratorViewModelTest, ComparesRepeatsByTheirExactText)
{
    GeneratorSettings settings = singleWord();
    settings.wordCount = 2;
    // The composed and the decomposed separator are canonically equivalent, but different texts.
    settings.separator = QStringLiteral("\u00e9");
    viewModel.setSettings(settings);
    const ScriptedRandom draws({indexOfEule, indexOfEule, indexOfEule, indexOfEule});
    viewModel.generate();
    settings.separator = QStringLiteral("e\u0301");
    viewModel.setSettings(settings);
    viewModel.generate();
    EXPECT_EQ(viewModel.history().first(2),
              (QStringList{QStringLiteral("eulee\u0301eule"), QStringLiteral("eule\u00e9eule")}));
}

TEST_F(GeneratorViewModelTest, KeepsTheLastSecretWhenASettingIsRejected)
{
    const QString generated = viewModel.generated();
    const double entropy = viewModel.entropy();
    const QStringList history = viewModel.history();

    viewModel.setSettings(withoutGroups());
    viewModel.generate();
    EXPECT_EQ(viewModel.errorMessage(), GeneratorError::noCharacterSet().errorDescription());
    EXPECT_TRUE(viewModel.errorPresented());
    EXPECT_EQ(viewModel.generated(), generated);
    EXPECT_EQ(viewModel.entropy(), entropy);
    EXPECT_EQ(viewModel.history(), history);

    viewModel.setSettings(GeneratorSettings());
    viewModel.generate();
    EXPECT_EQ(viewModel.errorMessage(), std::nullopt);
    EXPECT_EQ(viewModel.generated().size(), 20);
}

TEST_F(GeneratorViewModelTest, NamesTheSmallestAcceptedLength)
{
    GeneratorSettings settings;
    settings.length = 3;
    viewModel.setSettings(settings);
    viewModel.generate();
    EXPECT_EQ(
        viewModel.errorMessage(),
        QStringLiteral("Die Länge muss mindestens 4 betragen, damit jede Gruppe vorkommen kann."));
}

TEST_F(GeneratorViewModelTest, KeepsTheLastSecretWhenTheRandomSourceFails)
{
    const QString generated = viewModel.generated();
    const QStringList history = viewModel.history();
    {
        const ScriptedRandom draws([](std::uint64_t&) { return 38; });
        viewModel.generate();
    }
    EXPECT_EQ(viewModel.errorMessage(), GeneratorError::randomFailure(38).errorDescription());
    EXPECT_EQ(viewModel.generated(), generated);
    EXPECT_EQ(viewModel.history(), history);
}

TEST_F(GeneratorViewModelTest, RatesAnEarlierSecretWithTheCurrentSettings)
{
    viewModel.setSettings(singleWord());
    generateWord(indexOfEule);
    generateWord(indexOfMond);
    generateWord(indexOfTau);
    const QStringList history = viewModel.history();

    const GeneratorSettings passwords;
    viewModel.setSettings(passwords);
    viewModel.useFromHistory(viewModel.history().at(2));
    EXPECT_EQ(viewModel.generated(), QStringLiteral("eule"));
    EXPECT_DOUBLE_EQ(viewModel.entropy(), 4 * std::log2(75.0));
    EXPECT_EQ(viewModel.strength(), PasswordStrength::weak);
    EXPECT_EQ(viewModel.history(), history);
}

TEST_F(GeneratorViewModelTest, AnEarlierSecretKeepsTheErrorMessage)
{
    viewModel.setSettings(withoutGroups());
    viewModel.generate();
    viewModel.useFromHistory(viewModel.history().constFirst());
    EXPECT_TRUE(viewModel.errorPresented());
    EXPECT_EQ(viewModel.entropy(), 0);
}

TEST_F(GeneratorViewModelTest, ChangingSettingsGeneratesNothing)
{
    const QString generated = viewModel.generated();
    const QStringList history = viewModel.history();
    record();
    viewModel.setSettings(singleWord());
    EXPECT_EQ(viewModel.generated(), generated);
    EXPECT_EQ(viewModel.history(), history);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));
}

TEST_F(GeneratorViewModelTest, DismissingTheErrorClearsOnlyTheMessage)
{
    const QString generated = viewModel.generated();
    viewModel.setSettings(withoutGroups());
    viewModel.generate();
    record();
    viewModel.setErrorPresented(false);
    EXPECT_EQ(viewModel.errorMessage(), std::nullopt);
    EXPECT_EQ(viewModel.errorText(), QString());
    EXPECT_EQ(viewModel.generated(), generated);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("no error")));
}

TEST_F(GeneratorViewModelTest, SettingErrorPresentedToTrueDoesNothing)
{
    record();
    viewModel.setErrorPresented(true);
    EXPECT_FALSE(viewModel.errorPresented());
    EXPECT_THAT(log, ElementsAre());
}

TEST_F(GeneratorViewModelTest, ModeIndexIsTheIndexOfTheModesTitle)
{
    EXPECT_EQ(viewModel.modeIndex(), 0);
    EXPECT_FALSE(viewModel.isPassphrase());
    viewModel.setSettings(singleWord());
    EXPECT_EQ(viewModel.modeIndex(), 1);
    EXPECT_TRUE(viewModel.isPassphrase());
    EXPECT_EQ(GeneratorViewModel::modeTitles().at(viewModel.modeIndex()),
              rawValue(viewModel.settings().mode));
}

TEST_F(GeneratorViewModelTest, SettingTheModeIndexChangesOnlyTheMode)
{
    GeneratorSettings expected = singleWord();
    viewModel.setSettings(expected);
    record();
    for (const GeneratorMode mode : allGeneratorModes) {
        log.clear();
        viewModel.setModeIndex(mode == GeneratorMode::password ? 0 : 1);
        expected.mode = mode;
        EXPECT_EQ(viewModel.settings(), expected);
        EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));
    }
}

TEST_F(GeneratorViewModelTest, IsLongFromThe39thGraphemeCluster)
{
    const auto isLong = [this](const QString& secret) {
        viewModel.useFromHistory(secret);
        return viewModel.isLong();
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
    viewModel.setSettings(settings);
    record();
    viewModel.limitSeparator();
    settings.separator = QStringLiteral("a") + family + QStringLiteral("e\u0301");
    EXPECT_EQ(viewModel.settings(), settings);
    EXPECT_THAT(log, ElementsAre(QStringLiteral("settings")));
}

TEST_F(GeneratorViewModelTest, KeepsASeparatorOfUpToThreeGraphemeClusters)
{
    record();
    for (const QString& separator :
         {QString(), QStringLiteral("-"), QStringLiteral("abc"), QStringLiteral("e\u0301bc")}) {
        GeneratorSettings settings = singleWord();
        settings.separator = separator;
        viewModel.setSettings(settings);
        log.clear();
        viewModel.limitSeparator();
        EXPECT_EQ(viewModel.settings().separator, separator);
        EXPECT_THAT(log, ElementsAre());
    }
}

TEST_F(GeneratorViewModelTest, TheObserverSeesTheLongSeparatorAndTheShortenedOne)
{
    GeneratorSettingsObserver observer;
    int changes = 0;
    QObject::connect(&observer, &GeneratorSettingsObserver::changed, &viewModel,
                     [&changes] { ++changes; });
    GeneratorSettings settings = singleWord();
    viewModel.setSettings(settings);
    observer.setSettings(viewModel.settings());
    QObject::connect(&viewModel, &GeneratorViewModel::settingsChanged, &observer,
                     [&] { observer.setSettings(viewModel.settings()); });

    settings.separator = QStringLiteral("abcd");
    viewModel.setSettings(settings);
    EXPECT_EQ(changes, 1);
    viewModel.limitSeparator();
    EXPECT_EQ(changes, 2);
    viewModel.limitSeparator();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(viewModel.settings().separator, QStringLiteral("abc"));
}

TEST_F(GeneratorViewModelTest, StrengthFollowsTheEntropy)
{
    GeneratorSettings settings;
    settings.length = 15;
    viewModel.setSettings(settings);
    viewModel.generate();
    EXPECT_EQ(viewModel.strength(), PasswordStrength::strong);
    EXPECT_EQ(viewModel.strengthLevel(), 3);
    EXPECT_EQ(viewModel.strengthTitle(), QStringLiteral("Stark"));
    viewModel.setSettings(singleWord());
    generateWord(indexOfEule);
    EXPECT_EQ(viewModel.strength(), PasswordStrength::weak);
}

} // namespace
