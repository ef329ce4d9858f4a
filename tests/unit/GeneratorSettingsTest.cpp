// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorSettings.h"

#include "Printing.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(std::is_aggregate_v<GeneratorSettings>);
static_assert(std::is_copy_constructible_v<GeneratorSettings>);
static_assert(std::is_copy_assignable_v<GeneratorSettings>);
static_assert(std::is_nothrow_move_constructible_v<GeneratorSettings>);
static_assert(std::is_same_v<decltype(GeneratorSettings::length), qint64>);
static_assert(std::is_same_v<decltype(GeneratorSettings::wordCount), qint64>);

namespace {

using ::PrintTo;

TEST(GeneratorSettings, HaveTheDocumentedDefaults)
{
    const GeneratorSettings expected{
        .mode = GeneratorMode::password,
        .length = 20,
        .lowercase = true,
        .uppercase = true,
        .numbers = true,
        .symbols = true,
        .avoidAmbiguous = true,
        .requireEveryGroup = true,
        .wordCount = 5,
        .separator = u"-"_s,
        .capitalizeWords = false,
        .appendNumber = true,
    };
    EXPECT_EQ(GeneratorSettings(), expected);
}

TEST(GeneratorSettings, AcceptAnyInteger)
{
    constexpr auto lowest = std::numeric_limits<qint64>::min();
    constexpr auto highest = std::numeric_limits<qint64>::max();
    const GeneratorSettings settings{.length = lowest, .wordCount = highest};
    EXPECT_EQ(settings.length, lowest);
    EXPECT_EQ(settings.wordCount, highest);
}

TEST(GeneratorSettings, AreIndependentOfTheirCopies)
{
    const GeneratorSettings original;
    GeneratorSettings copy = original;
    copy.separator += u'+';
    EXPECT_EQ(original.separator, u"-"_s);
    EXPECT_NE(copy, original);
}

struct Change
{
    const char* name;
    void (*apply)(GeneratorSettings&);
};

class GeneratorSettingsField : public testing::TestWithParam<Change>
{
};

TEST_P(GeneratorSettingsField, TakesPartInTheComparison)
{
    const GeneratorSettings original;
    GeneratorSettings changed;
    GetParam().apply(changed);
    EXPECT_NE(changed, original);
    EXPECT_NE(original, changed);
}

TEST_P(GeneratorSettingsField, EqualsTheSameChangeOfTheField)
{
    GeneratorSettings one;
    GeneratorSettings other;
    GetParam().apply(one);
    GetParam().apply(other);
    EXPECT_EQ(one, other);
}

INSTANTIATE_TEST_SUITE_P(
    All, GeneratorSettingsField,
    testing::Values(Change{"Mode", [](auto& s) { s.mode = GeneratorMode::passphrase; }},
                    Change{"Length", [](auto& s) { s.length = 21; }},
                    Change{"Lowercase", [](auto& s) { s.lowercase = false; }},
                    Change{"Uppercase", [](auto& s) { s.uppercase = false; }},
                    Change{"Numbers", [](auto& s) { s.numbers = false; }},
                    Change{"Symbols", [](auto& s) { s.symbols = false; }},
                    Change{"AvoidAmbiguous", [](auto& s) { s.avoidAmbiguous = false; }},
                    Change{"RequireEveryGroup", [](auto& s) { s.requireEveryGroup = false; }},
                    Change{"WordCount", [](auto& s) { s.wordCount = 4; }},
                    Change{"Separator", [](auto& s) { s.separator = u" "_s; }},
                    Change{"CapitalizeWords", [](auto& s) { s.capitalizeWords = true; }},
                    Change{"AppendNumber", [](auto& s) { s.appendNumber = false; }}),
    rowName);

struct Separators
{
    const char* name;
    QString left;
    QString right;
    bool equal;
};

class GeneratorSettingsSeparator : public testing::TestWithParam<Separators>
{
};

TEST_P(GeneratorSettingsSeparator, ComparesByCanonicalEquivalence)
{
    const auto& [name, left, right, equal] = GetParam();
    const GeneratorSettings one{.separator = left};
    const GeneratorSettings other{.separator = right};
    EXPECT_EQ(one == other, equal);
    EXPECT_EQ(other == one, equal);
}

INSTANTIATE_TEST_SUITE_P(
    All, GeneratorSettingsSeparator,
    testing::Values(Separators{"ComposedAndDecomposed", u"\u00e4"_s, u"a\u0308"_s, true},
                    Separators{"MarksInAnotherOrder", u"a\u0323\u0308"_s, u"a\u0308\u0323"_s, true},
                    Separators{"HangulSyllableAndJamo", u"\uac00"_s, u"\u1100\u1161"_s, true},
                    Separators{"SingletonAndItsCharacter", u"\u212b"_s, u"\u00c5"_s, true},
                    Separators{"CompatibilityOnly", u"\ufb01"_s, u"fi"_s, false},
                    Separators{"MarksOfTheSameClassSwapped", u"a\u0308\u0301"_s, u"a\u0301\u0308"_s,
                               false},
                    Separators{"BaseAloneAndWithMark", u"a"_s, u"a\u0308"_s, false},
                    Separators{"UpperAndLowerCase", u"x"_s, u"X"_s, false},
                    Separators{"HyphenAndSpace", u"-"_s, u" "_s, false},
                    Separators{"EmptyAndSpace", u""_s, u" "_s, false},
                    Separators{"EmptyAndNull", u""_s, QString(), true},
                    Separators{"NullCharacterAndEmpty", QString(QChar(0)), u""_s, false}),
    rowName);

} // namespace
