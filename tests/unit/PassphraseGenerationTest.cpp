// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorError.h"
#include "Printing.h"
#include "ScriptedRandom.h"
#include "Services/SecureGenerator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

static_assert(SecureGenerator::words.size() == 76);
static_assert(SecureGenerator::words[62] == "tau" && SecureGenerator::words[63] == "tanne");

namespace {

using ::PrintTo;
using testing::Eq;
using testing::Throws;

constexpr GeneratorMode passphrase = GeneratorMode::passphrase;

/// The settings of a passphrase, the values that the random source yields, and the expected text.
struct Phrase
{
    const char* name;
    std::vector<std::uint64_t> drawn;
    qint64 wordCount = 0;
    QString separator = u"-"_s;
    bool capitalizeWords = false;
    bool appendNumber = false;
    QString text;
};

class PassphraseGeneration : public testing::TestWithParam<Phrase>
{
};

TEST_P(PassphraseGeneration, JoinsTheDrawnWords)
{
    const auto& row = GetParam();
    const ScriptedRandom random(row.drawn);
    const GeneratorSettings settings{.mode = passphrase,
                                     .wordCount = row.wordCount,
                                     .separator = row.separator,
                                     .capitalizeWords = row.capitalizeWords,
                                     .appendNumber = row.appendNumber};
    EXPECT_EQ(SecureGenerator().generate(settings), row.text);
    EXPECT_EQ(random.calls(), std::ssize(row.drawn));
}

INSTANTIATE_TEST_SUITE_P(
    All, PassphraseGeneration,
    testing::Values(Phrase{.name = "NoWordAndNoNumber", .drawn = {}, .wordCount = 0, .text = u""_s},
                    Phrase{.name = "NoWordButANumber",
                           .drawn = {7},
                           .wordCount = 0,
                           .appendNumber = true,
                           .text = u"-7"_s},
                    Phrase{.name = "NoWordAndADrawAtTheBoundOfTheNumber",
                           .drawn = {100},
                           .wordCount = 0,
                           .appendNumber = true,
                           .text = u"-0"_s},
                    Phrase{.name = "OneWordWithoutSeparator",
                           .drawn = {58},
                           .wordCount = 1,
                           .text = u"segel"_s},
                    Phrase{.name = "OneWordAndANumber",
                           .drawn = {58, 42},
                           .wordCount = 1,
                           .appendNumber = true,
                           .text = u"segel-42"_s},
                    Phrase{.name = "RepeatedWords",
                           .drawn = {5, 5, 5},
                           .wordCount = 3,
                           .text = u"beere-beere-beere"_s},
                    Phrase{.name = "ThreeWordsAndANumber",
                           .drawn = {0, 75, 62, 7},
                           .wordCount = 3,
                           .appendNumber = true,
                           .text = u"abend-zitrone-tau-7"_s},
                    Phrase{.name = "CapitalsWithoutSeparator",
                           .drawn = {0, 75, 62, 7},
                           .wordCount = 3,
                           .separator = u""_s,
                           .capitalizeWords = true,
                           .appendNumber = true,
                           .text = u"AbendZitroneTau7"_s},
                    Phrase{.name = "WordsWithoutSeparator",
                           .drawn = {36, 46},
                           .wordCount = 2,
                           .separator = u""_s,
                           .text = u"kometnordlicht"_s},
                    Phrase{.name = "SeparatorOfSeveralCharacters",
                           .drawn = {0, 75, 7},
                           .wordCount = 2,
                           .separator = u" + "_s,
                           .appendNumber = true,
                           .text = u"abend + zitrone + 7"_s},
                    Phrase{.name = "SpaceSeparator",
                           .drawn = {35, 64},
                           .wordCount = 2,
                           .separator = u" "_s,
                           .capitalizeWords = true,
                           .text = u"Kleeblatt Tulpe"_s},
                    Phrase{.name = "LetterSeparatorStaysLowerCase",
                           .drawn = {0, 75, 7},
                           .wordCount = 2,
                           .separator = u"x"_s,
                           .capitalizeWords = true,
                           .appendNumber = true,
                           .text = u"AbendxZitronex7"_s},
                    Phrase{.name = "DecomposedSeparatorStaysDecomposed",
                           .drawn = {0, 75, 7},
                           .wordCount = 2,
                           .separator = u"a\u0308"_s,
                           .appendNumber = true,
                           .text = u"abenda\u0308zitronea\u03087"_s},
                    Phrase{.name = "EmojiSeparator",
                           .drawn = {0, 75},
                           .wordCount = 2,
                           .separator = u"\U0001f511"_s,
                           .text = u"abend\U0001f511zitrone"_s},
                    Phrase{.name = "LowestNumber",
                           .drawn = {1, 0},
                           .wordCount = 1,
                           .appendNumber = true,
                           .text = u"anker-0"_s},
                    Phrase{.name = "HighestNumber",
                           .drawn = {1, 99},
                           .wordCount = 1,
                           .appendNumber = true,
                           .text = u"anker-99"_s},
                    Phrase{.name = "NumberBeyondTheHighest",
                           .drawn = {1, 109},
                           .wordCount = 1,
                           .appendNumber = true,
                           .text = u"anker-9"_s},
                    Phrase{.name = "IndexBeyondTheLastWord",
                           .drawn = {76, 151},
                           .wordCount = 2,
                           .text = u"abend-zitrone"_s}),
    rowName);

// A second copy of the list, because its words and their order are part of the behaviour.
constexpr std::string_view expectedWords
    = "abend anker apfel atlas bambus beere birke blitz brise bruecke "
      "diamant dohle drossel duene eiche eule feder felsen fjord flamme "
      "flieder fluss funke garten glanz hafen hain herbst himmel honig "
      "insel jasmin kiefer kiesel klang kleeblatt komet koralle kristall linde "
      "lotus mond moos morgen muschel nebel nordlicht oase palme perle "
      "pfad planet quelle regen rose saphir schilf schnee segel sonne "
      "stern strand tau tanne tulpe ufer vogel wald welle wiese "
      "wind wolke zeder zeit zirbe zitrone";

TEST(PassphraseWords, AreInTheExpectedOrder)
{
    std::string joined;
    for (const std::string_view word : SecureGenerator::words) {
        joined += word;
        joined += ' ';
    }
    joined.pop_back();
    EXPECT_EQ(joined, expectedWords);
}

TEST(PassphraseWords, AreReachedByTheirIndices)
{
    std::vector<std::uint64_t> indices(76);
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = i;
    const ScriptedRandom random(indices);
    const GeneratorSettings settings{
        .mode = passphrase, .wordCount = 76, .separator = u" "_s, .appendNumber = false};
    EXPECT_EQ(SecureGenerator().generate(settings).toStdString(), expectedWords);
}

TEST(PassphraseGenerationNumbers, RunFromZeroToNinetyNineWithoutPadding)
{
    const GeneratorSettings settings{.mode = passphrase, .wordCount = 0};
    for (std::uint64_t i = 0; i < 100; ++i) {
        const ScriptedRandom random{i};
        EXPECT_EQ(SecureGenerator().generate(settings), u'-' + QString::number(i));
    }
}

TEST(PassphraseGenerationSettings, IgnoreThePasswordFields)
{
    const ScriptedRandom random{0, 75, 7};
    const GeneratorSettings settings{.mode = passphrase,
                                     .length = 0,
                                     .lowercase = false,
                                     .uppercase = false,
                                     .numbers = false,
                                     .symbols = false,
                                     .wordCount = 2};
    EXPECT_EQ(SecureGenerator().generate(settings), u"abend-zitrone-7"_s);
}

class PassphraseRandomFailure : public testing::TestWithParam<std::size_t>
{
};

TEST_P(PassphraseRandomFailure, EndsTheGenerationAtOnce)
{
    const ScriptedRandom random(std::vector<std::uint64_t>(GetParam(), 0), FailsWith{-61});
    const GeneratorSettings settings{.mode = passphrase, .wordCount = 3};
    EXPECT_THAT([&settings] { return SecureGenerator().generate(settings); },
                Throws<GeneratorError>(Eq(GeneratorError::randomFailure(-61))));
    EXPECT_EQ(random.calls(), static_cast<std::int64_t>(GetParam()) + 1);
}

// After three draws all words are drawn, and the draw of the number fails.
INSTANTIATE_TEST_SUITE_P(AfterDraws, PassphraseRandomFailure,
                         testing::Range(std::size_t{0}, std::size_t{4}),
                         testing::PrintToStringParamName());

class PassphraseGenerationDeathTest : public testing::TestWithParam<qint64>
{
};

TEST_P(PassphraseGenerationDeathTest, StopsTheProgramBeforeAnyDraw)
{
    const ScriptedRandom random{};
    const GeneratorSettings settings{.mode = passphrase, .wordCount = GetParam()};
    EXPECT_DEATH(static_cast<void>(SecureGenerator().generate(settings)), "SecureGenerator");
}

INSTANTIATE_TEST_SUITE_P(NegativeWordCount, PassphraseGenerationDeathTest,
                         testing::Values(-1, std::numeric_limits<qint64>::min()),
                         [](const auto& instance) {
                             return instance.param == -1 ? "MinusOne" : "Lowest";
                         });

} // namespace
