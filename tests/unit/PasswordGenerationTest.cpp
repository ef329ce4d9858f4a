// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorError.h"
#include "Printing.h"
#include "ScriptedRandom.h"
#include "Services/SecureGenerator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

using namespace Qt::StringLiterals;

static_assert(SecureGenerator::lowercase == "abcdefghijklmnopqrstuvwxyz");
static_assert(SecureGenerator::uppercase == "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
static_assert(SecureGenerator::numbers == "0123456789");
static_assert(SecureGenerator::symbols == "!@#$%&*+-=?_~");
static_assert(SecureGenerator::symbols.size() == 13);
static_assert(SecureGenerator::ambiguous == "Il1O0o|`'\"");
static_assert(SecureGenerator::ambiguous.size() == 10);

namespace {

using ::PrintTo;
using testing::AllOf;
using testing::Each;
using testing::Eq;
using testing::SizeIs;
using testing::Throws;

constexpr GeneratorMode password = GeneratorMode::password;

// The groups without look-alikes, as literals, so that the test does not repeat the filter.
constexpr std::string_view unambiguousLowercase = "abcdefghijkmnpqrstuvwxyz";
constexpr std::string_view unambiguousUppercase = "ABCDEFGHJKLMNPQRSTUVWXYZ";
constexpr std::string_view unambiguousNumbers = "23456789";

/// A source without an end, which yields the same values in every run.
ScriptedRandom::Source endless()
{
    return [engine = std::mt19937_64()](std::uint64_t& value) mutable {
        value = engine();
        return 0;
    };
}

std::string generate(const GeneratorSettings& settings)
{
    return SecureGenerator().generate(settings).toStdString();
}

/// Password settings that enable only the groups in `groups` ("a", "A", "0" and "!").
GeneratorSettings withGroups(std::string_view groups)
{
    return {
        .mode = password,
        .lowercase = groups.find('a') != std::string_view::npos,
        .uppercase = groups.find('A') != std::string_view::npos,
        .numbers = groups.find('0') != std::string_view::npos,
        .symbols = groups.find('!') != std::string_view::npos,
    };
}

bool holdsAnyOf(std::string_view text, std::string_view characters)
{
    return text.find_first_of(characters) != std::string_view::npos;
}

TEST(PasswordGeneration, WithDefaultsHoldsEveryGroupAndNoLookAlike)
{
    const ScriptedRandom random(endless());
    for (int i = 0; i < 1000; ++i) {
        const std::string text = generate({});
        EXPECT_THAT(text, SizeIs(20));
        EXPECT_TRUE(holdsAnyOf(text, unambiguousLowercase)) << text;
        EXPECT_TRUE(holdsAnyOf(text, unambiguousUppercase)) << text;
        EXPECT_TRUE(holdsAnyOf(text, unambiguousNumbers)) << text;
        EXPECT_TRUE(holdsAnyOf(text, SecureGenerator::symbols)) << text;
        EXPECT_FALSE(holdsAnyOf(text, "Il1O0o")) << text;
    }
}

TEST(PasswordGeneration, OfDigitsWithoutLookAlikesHoldsOnlyTwoToNine)
{
    const ScriptedRandom random(endless());
    auto settings = withGroups("0");
    settings.length = 1000;
    const std::string text = generate(settings);
    EXPECT_THAT(text,
                AllOf(SizeIs(1000), Each(testing::AllOf(testing::Ge('2'), testing::Le('9')))));
    EXPECT_THAT(std::set(text.begin(), text.end()), SizeIs(8));
}

TEST(PasswordGeneration, DrawsEachGroupThenThePoolThenTheOrder)
{
    // One draw for each of the four groups, two for the pool, and each element stays in its place.
    const ScriptedRandom random{1, 2, 3, 4, 68, 24, 5, 4, 3, 2, 1};
    EXPECT_EQ(generate({.length = 6}), "bC5%~A");
    EXPECT_EQ(random.calls(), 11);
}

TEST(PasswordGeneration, ShufflesTheGuaranteedCharacters)
{
    // The same characters; then each element from the last to the second swaps with the first.
    const ScriptedRandom random{1, 2, 3, 4, 68, 24, 0, 0, 0, 0, 0};
    EXPECT_EQ(generate({.length = 6}), "C5%~Ab");
    EXPECT_EQ(random.calls(), 11);
}

TEST(PasswordGeneration, ShufflesWithoutTheGuaranteeToo)
{
    const ScriptedRandom random{0, 1, 2, 0, 0};
    EXPECT_EQ(generate({.length = 3, .requireEveryGroup = false}), "bca");
    EXPECT_EQ(random.calls(), 5);
}

TEST(PasswordGeneration, OfFourCharactersHoldsOneOfEachGroupInDrawnOrder)
{
    const ScriptedRandom random{0, 0, 0, 0, 1, 0, 1};
    EXPECT_EQ(generate({.length = 4}), "2!aA");
    EXPECT_EQ(random.calls(), 7);
}

TEST(PasswordGeneration, OfFourCharactersReachesEveryOrderOfTheGroups)
{
    std::set<std::string> orders;
    for (std::uint64_t i = 0; i < 24; ++i) {
        const ScriptedRandom random{0, 0, 0, 0, i / 6, i % 6 / 2, i % 2};
        orders.insert(generate({.length = 4}));
    }
    EXPECT_THAT(orders, SizeIs(24));
}

TEST(PasswordGeneration, DrawsGuaranteedCharactersFromTheirOwnGroup)
{
    // `last` draws the last index of each group, and `wrapped` draws the index after the last.
    const ScriptedRandom last{23, 23, 7, 12, 3, 2, 1};
    EXPECT_EQ(generate({.length = 4}), "zZ9~");
    const ScriptedRandom wrapped{24, 24, 8, 13, 3, 2, 1};
    EXPECT_EQ(generate({.length = 4}), "aA2!");
}

TEST(PasswordGeneration, DrawsGuaranteedLookAlikesWhereTheyAreAllowed)
{
    const ScriptedRandom random{25, 14, 0, 12, 3, 2, 1};
    EXPECT_EQ(generate({.length = 4, .avoidAmbiguous = false}), "zO0~");
    const ScriptedRandom wrapped{26, 26, 10, 13, 3, 2, 1};
    EXPECT_EQ(generate({.length = 4, .avoidAmbiguous = false}), "aA0!");
}

TEST(PasswordGeneration, GuaranteesOnlyTheEnabledGroups)
{
    auto settings = withGroups("A!");
    settings.length = 3;
    const ScriptedRandom random{3, 4, 24, 2, 1};
    EXPECT_EQ(generate(settings), "D%!");
    EXPECT_EQ(random.calls(), 5);
}

class PasswordPool : public testing::TestWithParam<std::tuple<int, bool>>
{
protected:
    static GeneratorSettings settings()
    {
        const auto [groups, avoidAmbiguous] = GetParam();
        return {
            .mode = password,
            .length = 1,
            .lowercase = (groups & 1) != 0,
            .uppercase = (groups & 2) != 0,
            .numbers = (groups & 4) != 0,
            .symbols = (groups & 8) != 0,
            .avoidAmbiguous = avoidAmbiguous,
            .requireEveryGroup = false,
        };
    }

    static std::string expectedPool()
    {
        const auto [groups, avoidAmbiguous] = GetParam();
        std::string pool;
        if ((groups & 1) != 0)
            pool += avoidAmbiguous ? unambiguousLowercase : "abcdefghijklmnopqrstuvwxyz";
        if ((groups & 2) != 0)
            pool += avoidAmbiguous ? unambiguousUppercase : "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
        if ((groups & 4) != 0)
            pool += avoidAmbiguous ? unambiguousNumbers : "0123456789";
        if ((groups & 8) != 0)
            pool += "!@#$%&*+-=?_~";
        return pool;
    }
};

std::string poolName(const testing::TestParamInfo<std::tuple<int, bool>>& instance)
{
    const auto [groups, avoidAmbiguous] = instance.param;
    std::string name;
    if ((groups & 1) != 0)
        name += "Lowercase";
    if ((groups & 2) != 0)
        name += "Uppercase";
    if ((groups & 4) != 0)
        name += "Numbers";
    if ((groups & 8) != 0)
        name += "Symbols";
    return name + (avoidAmbiguous ? "WithoutLookAlikes" : "WithLookAlikes");
}

TEST_P(PasswordPool, YieldsItsCharactersByIndex)
{
    std::string pool;
    for (std::uint64_t i = 0; i < expectedPool().size(); ++i) {
        const ScriptedRandom random{i};
        pool += generate(settings());
    }
    EXPECT_EQ(pool, expectedPool());
}

TEST_P(PasswordPool, HasItsSizeAsTheBound)
{
    const ScriptedRandom random{expectedPool().size()};
    EXPECT_EQ(generate(settings()), expectedPool().substr(0, 1));
}

INSTANTIATE_TEST_SUITE_P(All, PasswordPool,
                         testing::Combine(testing::Range(1, 16), testing::Bool()), poolName);

struct DrawCount
{
    const char* name;
    GeneratorSettings settings;
    std::int64_t calls;
};

class PasswordDrawCount : public testing::TestWithParam<DrawCount>
{
};

TEST_P(PasswordDrawCount, IsTwiceTheLengthLessOne)
{
    const ScriptedRandom random(endless());
    EXPECT_THAT(generate(GetParam().settings),
                SizeIs(static_cast<std::size_t>(std::max<qint64>(GetParam().settings.length, 0))));
    EXPECT_EQ(random.calls(), GetParam().calls);
}

INSTANTIATE_TEST_SUITE_P(
    All, PasswordDrawCount,
    testing::Values(DrawCount{"One", {.length = 1, .requireEveryGroup = false}, 1},
                    DrawCount{"Two", {.length = 2, .requireEveryGroup = false}, 3},
                    DrawCount{"FourGuaranteed", {.length = 4}, 7},
                    DrawCount{"TenGuaranteed", {.length = 10}, 19},
                    DrawCount{"TwentyGuaranteed", {.length = 20}, 39},
                    DrawCount{
                        "TwentyWithoutGuarantee", {.length = 20, .requireEveryGroup = false}, 39},
                    DrawCount{"SixtyFour", {.length = 64}, 127},
                    DrawCount{"Thousand", {.length = 1000}, 1999}),
    rowName);

struct Rejection
{
    const char* name;
    GeneratorSettings settings;
    GeneratorError error;
};

class PasswordRejection : public testing::TestWithParam<Rejection>
{
};

TEST_P(PasswordRejection, ComesBeforeAnyDraw)
{
    const ScriptedRandom random{};
    EXPECT_THAT([] { return generate(GetParam().settings); },
                Throws<GeneratorError>(Eq(GetParam().error)));
    EXPECT_EQ(random.calls(), 0);
}

GeneratorSettings withGroups(std::string_view groups, qint64 length, bool requireEveryGroup = true)
{
    auto settings = withGroups(groups);
    settings.length = length;
    settings.requireEveryGroup = requireEveryGroup;
    return settings;
}

constexpr auto lowest = std::numeric_limits<qint64>::min();
constexpr auto highest = std::numeric_limits<qint64>::max();

INSTANTIATE_TEST_SUITE_P(
    NoGroup, PasswordRejection,
    testing::Values(
        Rejection{"DefaultLength", withGroups("", 20), GeneratorError::noCharacterSet()},
        Rejection{"LengthZero", withGroups("", 0), GeneratorError::noCharacterSet()},
        Rejection{"LengthZeroWithoutGuarantee", withGroups("", 0, false),
                  GeneratorError::noCharacterSet()},
        Rejection{"LowestLength", withGroups("", lowest), GeneratorError::noCharacterSet()},
        Rejection{"HighestLength", withGroups("", highest), GeneratorError::noCharacterSet()}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    LengthBelowGroupCount, PasswordRejection,
    testing::Values(
        Rejection{"ThreeGroupsTwo", withGroups("aA0", 2), GeneratorError::lengthTooShort(3)},
        Rejection{"FourGroupsThree", withGroups("aA0!", 3), GeneratorError::lengthTooShort(4)},
        Rejection{"TwoGroupsOne", withGroups("0!", 1), GeneratorError::lengthTooShort(2)},
        Rejection{"OneGroupZero", withGroups("A", 0), GeneratorError::lengthTooShort(1)},
        Rejection{"OneGroupBelowZero", withGroups("a", -1), GeneratorError::lengthTooShort(1)},
        Rejection{"FourGroupsLowest", withGroups("aA0!", lowest),
                  GeneratorError::lengthTooShort(4)}),
    rowName);

TEST(PasswordGeneration, AcceptsTwoCharactersWithoutTheGuarantee)
{
    const ScriptedRandom random{0, 24, 1};
    EXPECT_EQ(generate(withGroups("aA0", 2, false)), "aA");
    EXPECT_EQ(random.calls(), 3);
}

class EmptyPassword : public testing::TestWithParam<qint64>
{
};

TEST_P(EmptyPassword, TakesNoDraw)
{
    const ScriptedRandom random{};
    EXPECT_EQ(generate(withGroups("a", GetParam(), false)), "");
    EXPECT_EQ(random.calls(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, EmptyPassword, testing::Values(0, -1, lowest),
                         [](const auto& instance) {
                             return instance.param == 0    ? "Zero"
                                    : instance.param == -1 ? "MinusOne"
                                                           : "Lowest";
                         });

TEST(PasswordGeneration, IgnoresThePassphraseFields)
{
    const ScriptedRandom random{0, 0, 0, 0, 3, 2, 1};
    const GeneratorSettings settings{.length = 4,
                                     .wordCount = -1,
                                     .separator = u"+"_s,
                                     .capitalizeWords = true,
                                     .appendNumber = false};
    EXPECT_EQ(generate(settings), "aA2!");
}

TEST(PasswordGeneration, KeepsNoStateBetweenCalls)
{
    for (int i = 0; i < 2; ++i) {
        const ScriptedRandom random{0, 0, 0, 0, 3, 2, 1};
        EXPECT_EQ(generate({.length = 4}), "aA2!");
        EXPECT_EQ(random.calls(), 7);
    }
}

class PasswordRandomFailure : public testing::TestWithParam<std::size_t>
{
};

TEST_P(PasswordRandomFailure, EndsTheGenerationAtOnce)
{
    const ScriptedRandom random(std::vector<std::uint64_t>(GetParam(), 0), FailsWith{-61});
    EXPECT_THAT([] { return generate({.length = 6}); },
                Throws<GeneratorError>(Eq(GeneratorError::randomFailure(-61))));
    EXPECT_EQ(random.calls(), static_cast<std::int64_t>(GetParam()) + 1);
}

// Six characters take eleven draws: four for the groups, two for the pool, five for the shuffle.
INSTANTIATE_TEST_SUITE_P(AfterDraws, PasswordRandomFailure,
                         testing::Range(std::size_t{0}, std::size_t{11}),
                         testing::PrintToStringParamName());

TEST(PasswordGenerationDeathTest, StopsTheProgramIfTheLengthExceedsTheMemory)
{
    const ScriptedRandom random{};
    EXPECT_DEATH(generate({.length = highest}), "SecureGenerator");
}

} // namespace
