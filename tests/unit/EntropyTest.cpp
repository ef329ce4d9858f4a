// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Printing.h"
#include "ScriptedRandom.h"
#include "Services/SecureGenerator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

static_assert(std::is_same_v<decltype(std::declval<SecureGenerator>().estimatedEntropy(
                                 QString(), GeneratorSettings())),
                             double>);

namespace {

using ::PrintTo;

constexpr GeneratorMode passphrase = GeneratorMode::passphrase;
constexpr SecureGenerator generator;

/// Password settings with these groups enabled.
GeneratorSettings groups(bool lowercase, bool uppercase, bool numbers, bool symbols)
{
    return {.lowercase = lowercase, .uppercase = uppercase, .numbers = numbers, .symbols = symbols};
}

GeneratorSettings words(qint64 wordCount, bool appendNumber)
{
    return {.mode = passphrase, .wordCount = wordCount, .appendNumber = appendNumber};
}

struct Estimate
{
    const char* name;
    GeneratorSettings settings;
    QString text;
    double bits;
};

// The expected bits are rounded to six decimal places.
constexpr double tolerance = 0.000'000'6;

class EntropyEstimate : public testing::TestWithParam<Estimate>
{
protected:
    static double estimate()
    {
        return generator.estimatedEntropy(GetParam().text, GetParam().settings);
    }
};

TEST_P(EntropyEstimate, IsTheExpectedNumberOfBits)
{
    EXPECT_NEAR(estimate(), GetParam().bits, tolerance);
}

TEST_P(EntropyEstimate, DrawsNothing)
{
    const ScriptedRandom random{};
    EXPECT_GE(estimate(), 0);
    EXPECT_EQ(random.calls(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    OfOneCharacter, EntropyEstimate,
    testing::Values(
        Estimate{"Digits", groups(false, false, true, false), u"7"_s, 3.321928},
        Estimate{"Symbols", groups(false, false, false, true), u"7"_s, 3.700440},
        Estimate{"DigitsAndSymbols", groups(false, false, true, true), u"7"_s, 4.523562},
        Estimate{"Lowercase", groups(true, false, false, false), u"7"_s, 4.700440},
        Estimate{"Uppercase", groups(false, true, false, false), u"7"_s, 4.700440},
        Estimate{"UppercaseAndDigits", groups(false, true, true, false), u"7"_s, 5.169925},
        Estimate{"Letters", groups(true, true, false, false), u"7"_s, 5.700440},
        Estimate{"LettersAndDigits", groups(true, true, true, false), u"7"_s, 5.954196},
        Estimate{"LettersAndSymbols", groups(true, true, false, true), u"7"_s, 6.022368},
        Estimate{"All", groups(true, true, true, true), u"7"_s, 6.228819}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    OfPassword, EntropyEstimate,
    testing::Values(Estimate{"NoGroup", groups(false, false, false, false), u"abcdef"_s, 0},
                    Estimate{"EmptyText", {}, u""_s, 0},
                    Estimate{"TenCharacters", {}, u"abcdefghij"_s, 62.288187},
                    Estimate{"TwelveOfLengthTwenty", {}, u"abcdefghijkl"_s, 74.745824},
                    Estimate{"FifteenCharacters", {}, u"abcdefghijklmno"_s, 93.432280},
                    Estimate{"TwentyCharacters", {}, QString(20, u'a'), 124.576374},
                    Estimate{"SixtyFourCharacters", {}, QString(64, u'a'), 398.644396},
                    Estimate{"PassphraseText", {}, u"abend-anker"_s, 68.517006},
                    Estimate{"GraphemeClusters", {}, u"a\u0308\U0001f1e9\U0001f1ea"_s, 12.457637}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    OfPassphrase, EntropyEstimate,
    testing::Values(Estimate{"NoWord", words(0, false), u""_s, 0},
                    Estimate{"NoWordAndNumber", words(0, true), u"-7"_s, 6.643856},
                    Estimate{"OneWord", words(1, false), u"tau"_s, 6.247928},
                    Estimate{"ThreeWords", words(3, false), u""_s, 18.743783},
                    Estimate{"ThreeWordsAndNumber", words(3, true), u""_s, 25.387639},
                    Estimate{"FourWords", words(4, false), u""_s, 24.991710},
                    Estimate{"FourWordsAndNumber", words(4, true), u""_s, 31.635566},
                    Estimate{"FiveWords", words(5, false), u""_s, 31.239638},
                    Estimate{"FiveWordsAndNumber", words(5, true), u""_s, 37.883494},
                    Estimate{"SixWords", words(6, false), u""_s, 37.487565},
                    Estimate{"SixWordsAndNumber", words(6, true), u""_s, 44.131421},
                    Estimate{"SevenWords", words(7, false), u""_s, 43.735493},
                    Estimate{"SevenWordsAndNumber", words(7, true), u""_s, 50.379349},
                    Estimate{"EightWords", words(8, false), u""_s, 49.983420},
                    Estimate{"EightWordsAndNumber", words(8, true), u""_s, 56.627276}),
    rowName);

TEST(PasswordEntropy, IsTheSameWithAndWithoutLookAlikes)
{
    EXPECT_EQ(generator.estimatedEntropy(u"abcdef"_s, {.avoidAmbiguous = true}),
              generator.estimatedEntropy(u"abcdef"_s, {.avoidAmbiguous = false}));
}

TEST(PasswordEntropy, IsTheSameWithAndWithoutGuaranteedGroups)
{
    EXPECT_EQ(generator.estimatedEntropy(u"abcdef"_s, {.requireEveryGroup = true}),
              generator.estimatedEntropy(u"abcdef"_s, {.requireEveryGroup = false}));
}

TEST(PasswordEntropy, FollowsTheTextAndNotTheLength)
{
    const QString text = u"abcdefghijkl"_s;
    EXPECT_EQ(generator.estimatedEntropy(text, {.length = 20}), 12 * std::log2(75.0));
    EXPECT_EQ(generator.estimatedEntropy(text, {.length = -5}), 12 * std::log2(75.0));
}

TEST(PasswordEntropy, WithoutAnyGroupIsWeak)
{
    const double bits = generator.estimatedEntropy(u"abcdef"_s, groups(false, false, false, false));
    EXPECT_EQ(bits, 0);
    EXPECT_EQ(generator.strength(bits), PasswordStrength::weak);
}

TEST(PassphraseEntropy, IgnoresTheText)
{
    const auto settings = words(5, true);
    EXPECT_EQ(generator.estimatedEntropy(u""_s, settings),
              generator.estimatedEntropy(u"abend-anker"_s, settings));
}

TEST(PassphraseEntropy, IgnoresSeparatorAndCapitals)
{
    const GeneratorSettings changed{
        .mode = passphrase, .separator = u" + "_s, .capitalizeWords = true};
    const GeneratorSettings defaults{.mode = passphrase};
    EXPECT_EQ(generator.estimatedEntropy(u""_s, changed),
              generator.estimatedEntropy(u""_s, defaults));
}

TEST(PassphraseEntropy, IgnoresThePasswordFields)
{
    auto settings = groups(false, false, false, false);
    settings.mode = passphrase;
    settings.length = 0;
    EXPECT_EQ(generator.estimatedEntropy(u""_s, settings), 5 * std::log2(76.0) + std::log2(100.0));
}

struct Rating
{
    const char* name;
    double bits;
    PasswordStrength strength;
};

class StrengthRating : public testing::TestWithParam<Rating>
{
};

TEST_P(StrengthRating, FollowsTheThresholds)
{
    EXPECT_EQ(generator.strength(GetParam().bits), GetParam().strength);
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

INSTANTIATE_TEST_SUITE_P(
    All, StrengthRating,
    testing::Values(Rating{"MinusInfinity", -infinity, PasswordStrength::weak},
                    Rating{"Negative", -1, PasswordStrength::weak},
                    Rating{"Zero", 0, PasswordStrength::weak},
                    Rating{"Below45", 44.999, PasswordStrength::weak},
                    Rating{"JustBelow45", std::nextafter(45.0, 0.0), PasswordStrength::weak},
                    Rating{"At45", 45, PasswordStrength::fair},
                    Rating{"Below65", 64.999, PasswordStrength::fair},
                    Rating{"JustBelow65", std::nextafter(65.0, 0.0), PasswordStrength::fair},
                    Rating{"At65", 65, PasswordStrength::good},
                    Rating{"Below90", 89.999, PasswordStrength::good},
                    Rating{"JustBelow90", std::nextafter(90.0, 0.0), PasswordStrength::good},
                    Rating{"At90", 90, PasswordStrength::strong},
                    Rating{"Infinity", infinity, PasswordStrength::strong},
                    Rating{"NotANumber", notANumber, PasswordStrength::strong},
                    Rating{"DefaultPassphrase", 37.883494, PasswordStrength::weak},
                    Rating{"LongestPassphrase", 56.627276, PasswordStrength::fair},
                    Rating{"TenCharacters", 62.288187, PasswordStrength::fair},
                    Rating{"TwelveCharacters", 74.745824, PasswordStrength::good},
                    Rating{"FifteenCharacters", 93.432280, PasswordStrength::strong}),
    rowName);

} // namespace
