// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Services/LineBreaks.h"

#include "Printing.h"
#include "Services/SecureGenerator.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>
#include <string>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Le;
using enum LineBreaks::SecretLength;

namespace {

/// The widths of the lines into which `pieces` are divided.
std::vector<double> lineWidths(const std::vector<double>& pieces, double width)
{
    std::vector<double> edges{0};
    std::partial_sum(pieces.begin(), pieces.end(), std::back_inserter(edges));
    std::vector<double> widths;
    std::size_t start = 0;
    for (const std::size_t end : LineBreaks::balancedLines(edges, width)) {
        widths.push_back(edges[end] - edges[start]);
        start = end;
    }
    return widths;
}

std::vector<double> characters(std::size_t count)
{
    return std::vector<double>(count, 1);
}

struct Passphrase
{
    const char* name;
    const char16_t* secret;
    std::vector<qsizetype> starts;
};

class WordStarts : public testing::TestWithParam<Passphrase>
{
};

TEST_P(WordStarts, FollowTheSeparator)
{
    EXPECT_EQ(LineBreaks::wordStarts(GetParam().secret), GetParam().starts);
}

INSTANTIATE_TEST_SUITE_P(
    LineBreaks, WordStarts,
    testing::Values(Passphrase{"Hyphen", u"abend-tau-mond-42", {0, 6, 10, 15}},
                    Passphrase{"NoNumber", u"abend-tau-mond", {0, 6, 10}},
                    Passphrase{"Capitals", u"Abend-Tau-Mond-7", {0, 6, 10, 15}},
                    Passphrase{"NoSeparator", u"abendtaumond7", {0, 5, 8, 12}},
                    Passphrase{"Blanks", u"abend · tau · mond · 42", {0, 8, 14, 21}},
                    Passphrase{"Letters", u"abendundtauundmond", {0, 8, 14}},
                    Passphrase{"Digits", u"abend1tau1mond142", {0, 6, 10, 15}},
                    Passphrase{"AWord", u"abendtautautaumond", {0, 5, 8, 11, 14}},
                    Passphrase{"Emoji", u"abend\U0001F511tau\U0001F51142", {0, 7, 12}},
                    Passphrase{"CombiningMark", u"abende\u0301taue\u030142", {0, 7, 12}},
                    Passphrase{"RightToLeft", u"abend\u05D0tau\u05D042", {0, 6, 10}},
                    Passphrase{"DifferentSeparators", u"abend-tau_mond", {}},
                    Passphrase{"UnknownWord", u"abend-zzz-mond", {}},
                    Passphrase{"LongNumber", u"abend-tau-123", {}},
                    Passphrase{"OneWord", u"abend", {}}, Passphrase{"Password", u"aB3$x-Yz9!", {}},
                    Passphrase{"Empty", u"", {}}),
    [](const auto& passphrase) { return passphrase.param.name; });

TEST(BalancedLines, KeepsASecretThatFitsOnOneLine)
{
    EXPECT_THAT(lineWidths(characters(26), 26), ElementsAre(26));
}

TEST(BalancedLines, DividesCharactersEvenlyWithTheLongerLinesFirst)
{
    EXPECT_THAT(lineWidths(characters(27), 26), ElementsAre(14, 13));
    EXPECT_THAT(lineWidths(characters(53), 26), ElementsAre(18, 18, 17));
    EXPECT_THAT(lineWidths(characters(64), 26), ElementsAre(22, 21, 21));
    EXPECT_THAT(lineWidths(characters(78), 26), ElementsAre(26, 26, 26));
}

TEST(BalancedLines, NeverLeavesALonePairForTheLastLine)
{
    for (std::size_t width = 8; width <= 40; ++width) {
        for (std::size_t length = 1; length <= 3 * width; ++length) {
            const auto widths = lineWidths(characters(length), static_cast<double>(width));
            ASSERT_EQ(widths.size(), (length + width - 1) / width);
            const auto [least, most] = std::ranges::minmax(widths);
            ASSERT_THAT(most - least, Le(1)) << length << " characters in lines of " << width;
        }
    }
}

TEST(BalancedLines, BreaksOnlyBetweenPieces)
{
    EXPECT_THAT(lineWidths({6, 6, 6, 6, 2}, 20), ElementsAre(12, 14));
    EXPECT_THAT(lineWidths({9, 4, 9, 4, 9, 2}, 15), ElementsAre(13, 13, 11));
}

TEST(BalancedLines, PrefersFewerLinesToMoreEvenLines)
{
    EXPECT_THAT(lineWidths({5, 5, 5}, 10), ElementsAre(10, 5));
}

TEST(BalancedLines, IsEmptyIfThreeLinesAreNotEnough)
{
    EXPECT_THAT(lineWidths(characters(79), 26), IsEmpty());
    EXPECT_THAT(lineWidths({27}, 26), IsEmpty());
    EXPECT_THAT(lineWidths({6, 6, 6, 6}, 10), IsEmpty());
}

TEST(LinesNeeded, IsExactForPasswords)
{
    GeneratorSettings settings;
    for (settings.length = 8; settings.length <= 64; ++settings.length) {
        const auto length = settings.length > 38 ? aboveLimit : atMostLimit;
        EXPECT_TRUE(LineBreaks::canOccur(length, settings));
        EXPECT_FALSE(
            LineBreaks::canOccur(length == aboveLimit ? atMostLimit : aboveLimit, settings));
        EXPECT_EQ(LineBreaks::linesNeeded(length, settings, 26, 1),
                  std::min<qint64>(3, (settings.length + 25) / 26));
    }
}

TEST(LinesNeeded, IsEnoughForEveryPassphrase)
{
    const SecureGenerator generator;
    for (int draw = 0; draw < 20000; ++draw) {
        GeneratorSettings settings{.mode = GeneratorMode::passphrase};
        settings.wordCount = 3 + draw % 6;
        settings.separator = QString(draw % 4, u'-');
        settings.appendNumber = draw % 5 != 0;
        const QString secret = generator.generate(settings);
        const bool isLong = secret.size() > LineBreaks::shortSecretLimit;
        const qsizetype columns = 20 + draw % 21;

        std::vector<double> pieces;
        auto starts = LineBreaks::wordStarts(secret);
        starts.push_back(secret.size());
        for (std::size_t i = 1; i < starts.size(); ++i)
            pieces.push_back(static_cast<double>(starts[i] - starts[i - 1]));
        const auto lines = lineWidths(pieces, static_cast<double>(columns));

        const auto length = isLong ? aboveLimit : atMostLimit;
        ASSERT_TRUE(LineBreaks::canOccur(length, settings)) << secret.toStdString();
        ASSERT_THAT(
            static_cast<int>(lines.size()),
            Le(LineBreaks::linesNeeded(length, settings, columns, settings.separator.size())))
            << secret.toStdString() << " in lines of " << columns;
    }
}

TEST(LinesNeeded, CountsColumnsOfWideSeparators)
{
    GeneratorSettings settings{.mode = GeneratorMode::passphrase, .wordCount = 3};
    const auto lines = [&settings](qsizetype separatorColumns) {
        return LineBreaks::linesNeeded(atMostLimit, settings, 34, separatorColumns);
    };
    EXPECT_EQ(lines(1), 1); // three words of 9 letters, three separators and two digits
    EXPECT_EQ(lines(2), 2);
}

TEST(SecretLength, OfPassphrasesHasARange)
{
    GeneratorSettings settings{.mode = GeneratorMode::passphrase};
    const auto possible = [&settings](int wordCount, const QString& separator) {
        settings.wordCount = wordCount;
        settings.separator = separator;
        return std::pair(LineBreaks::canOccur(atMostLimit, settings),
                         LineBreaks::canOccur(aboveLimit, settings));
    };
    // Words have 3 to 9 letters, and numbers have one or two digits.
    EXPECT_EQ(possible(3, QStringLiteral("-")), std::pair(true, false));  // 13 to 32
    EXPECT_EQ(possible(4, QString()), std::pair(true, false));            // 13 to 38
    EXPECT_EQ(possible(4, QStringLiteral("-")), std::pair(true, true));   // 17 to 42
    EXPECT_EQ(possible(8, QStringLiteral("-")), std::pair(true, true));   // 33 to 82
    EXPECT_EQ(possible(8, QStringLiteral("--")), std::pair(false, true)); // 41 to 90
}

} // namespace
