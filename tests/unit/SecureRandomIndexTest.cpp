// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorError.h"
#include "Platform/SecureRandom.h"
#include "Printing.h"
#include "ScriptedRandom.h"
#include "Services/SecureGenerator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <set>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

static_assert(std::is_empty_v<SecureGenerator>);
static_assert(std::is_trivially_copyable_v<SecureGenerator>);
static_assert(noexcept(Platform::fillSecureRandom(std::span<std::byte>())));
static_assert(std::is_same_v<decltype(SecureGenerator().secureIndex(1)), std::int64_t>);

namespace {

using ::PrintTo;
using testing::ElementsAre;
using testing::Eq;
using testing::Throws;

constexpr auto highest = std::numeric_limits<std::uint64_t>::max();
constexpr auto highestBound = std::numeric_limits<std::int64_t>::max();

TEST(SecureRandomIndex, TakesOneDrawEvenForASingleChoice)
{
    const ScriptedRandom random{highest - 1};
    EXPECT_EQ(SecureGenerator().secureIndex(1), 0);
    EXPECT_EQ(random.calls(), 1);
}

TEST(SecureRandomIndex, DrawsAgainAfterTheHighestValue)
{
    const ScriptedRandom random{highest, 5};
    EXPECT_EQ(SecureGenerator().secureIndex(2), 1);
    EXPECT_EQ(random.calls(), 2);
}

TEST(SecureRandomIndex, DrawsAgainUntilAValueIsAccepted)
{
    const ScriptedRandom random{highest, highest, highest - 1, highest, 3};
    EXPECT_EQ(SecureGenerator().secureIndex(2), 1);
    EXPECT_EQ(random.calls(), 5);
}

struct Threshold
{
    const char* name;
    std::int64_t bound;
    /// The lowest value that is rejected.
    std::uint64_t limit;
    /// The index of the value below `limit`.
    std::int64_t lastIndex;
};

class SecureRandomIndexThreshold : public testing::TestWithParam<Threshold>
{
};

TEST_P(SecureRandomIndexThreshold, AcceptsTheValueBelow)
{
    const auto& row = GetParam();
    const ScriptedRandom random{row.limit - 1};
    EXPECT_EQ(SecureGenerator().secureIndex(row.bound), row.lastIndex);
    EXPECT_EQ(random.calls(), 1);
}

TEST_P(SecureRandomIndexThreshold, RejectsTheValueItself)
{
    const auto& row = GetParam();
    const ScriptedRandom random{row.limit, 0};
    EXPECT_EQ(SecureGenerator().secureIndex(row.bound), 0);
    EXPECT_EQ(random.calls(), 2);
}

TEST_P(SecureRandomIndexThreshold, RejectsTheHighestValue)
{
    const auto& row = GetParam();
    const ScriptedRandom random{highest, 0};
    EXPECT_EQ(SecureGenerator().secureIndex(row.bound), 0);
    EXPECT_EQ(random.calls(), 2);
}

// The limits are literals, so that the test does not repeat the calculation. The value below the
// limit has the last index, because the accepted values consist of whole runs of all indices.
INSTANTIATE_TEST_SUITE_P(All, SecureRandomIndexThreshold,
                         testing::Values(Threshold{"Bound1", 1, 0xffff'ffff'ffff'ffffU, 0},
                                         Threshold{"Bound2", 2, 0xffff'ffff'ffff'fffeU, 1},
                                         Threshold{"Bound3", 3, 0xffff'ffff'ffff'ffffU, 2},
                                         Threshold{"Bound4", 4, 0xffff'ffff'ffff'fffcU, 3},
                                         Threshold{"Bound10", 10, 0xffff'ffff'ffff'fffaU, 9},
                                         Threshold{"Bound26", 26, 0xffff'ffff'ffff'fff0U, 25},
                                         Threshold{"Bound69", 69, 0xffff'ffff'ffff'ffccU, 68},
                                         Threshold{"Bound75", 75, 0xffff'ffff'ffff'fff0U, 74},
                                         Threshold{"Bound76", 76, 0xffff'ffff'ffff'ffdcU, 75},
                                         Threshold{"Bound100", 100, 0xffff'ffff'ffff'fff0U, 99},
                                         Threshold{"BoundAbove32Bits", 0x1'0000'0000,
                                                   0xffff'ffff'0000'0000U, 0xffff'ffff},
                                         Threshold{"HighestBound", highestBound,
                                                   0xffff'ffff'ffff'fffeU, highestBound - 1}),
                         rowName);

TEST(SecureRandomIndex, RejectsAllSixteenTopValuesOfTwentySix)
{
    for (std::uint64_t i = 0; i < 16; ++i) {
        const ScriptedRandom random{highest - i, 25};
        EXPECT_EQ(SecureGenerator().secureIndex(26), 25) << i;
        EXPECT_EQ(random.calls(), 2) << i;
    }
}

TEST(SecureRandomIndex, OfThreeIsTheRemainderOfTheValueAfterARejection)
{
    const ScriptedRandom random{highest, 7};
    EXPECT_EQ(SecureGenerator().secureIndex(3), 1);
    EXPECT_EQ(random.calls(), 2);
}

TEST(SecureRandomIndex, OfThreeAcceptsTheSecondHighestValue)
{
    const ScriptedRandom random{highest - 1};
    EXPECT_EQ(SecureGenerator().secureIndex(3), 2);
    EXPECT_EQ(random.calls(), 1);
}

class SecureRandomFailure : public testing::TestWithParam<std::int32_t>
{
};

TEST_P(SecureRandomFailure, CarriesTheStatus)
{
    const ScriptedRandom random({}, FailsWith{GetParam()});
    EXPECT_THAT([] { return SecureGenerator().secureIndex(10); },
                Throws<GeneratorError>(Eq(GeneratorError::randomFailure(GetParam()))));
    EXPECT_EQ(random.calls(), 1);
}

INSTANTIATE_TEST_SUITE_P(All, SecureRandomFailure,
                         testing::Values(1, -1, 5, -50, std::numeric_limits<std::int32_t>::max(),
                                         std::numeric_limits<std::int32_t>::min()),
                         [](const auto& instance) {
                             return (instance.param < 0 ? "Minus" : "Plus")
                                    + std::to_string(std::abs(std::int64_t{instance.param}));
                         });

TEST(SecureRandomFailure, EndsTheSearchForAnAcceptableValue)
{
    const ScriptedRandom random({highest, highest}, FailsWith{-7});
    EXPECT_THAT([] { return SecureGenerator().secureIndex(10); },
                Throws<GeneratorError>(Eq(GeneratorError::randomFailure(-7))));
    EXPECT_EQ(random.calls(), 3);
}

class SecureRandomIndexDeathTest : public testing::TestWithParam<std::int64_t>
{
};

TEST_P(SecureRandomIndexDeathTest, StopsTheProgramBeforeAnyDraw)
{
    const ScriptedRandom random{};
    EXPECT_DEATH(static_cast<void>(SecureGenerator().secureIndex(GetParam())), "SecureGenerator");
}

INSTANTIATE_TEST_SUITE_P(NonPositive, SecureRandomIndexDeathTest,
                         testing::Values(0, -1, std::numeric_limits<std::int64_t>::min()),
                         [](const auto& instance) {
                             return instance.param == 0    ? "Zero"
                                    : instance.param == -1 ? "MinusOne"
                                                           : "Lowest";
                         });

TEST(SecurePick, OfASingleElementTakesOneDraw)
{
    const ScriptedRandom random{12345};
    EXPECT_EQ(SecureGenerator().pick(std::array{7}), 7);
    EXPECT_EQ(random.calls(), 1);
}

TEST(SecurePick, TakesTheElementAtTheDrawnIndex)
{
    const std::vector<std::string> list{"a", "b", "c"};
    const ScriptedRandom random{2, 0, 1, 3};
    EXPECT_EQ(SecureGenerator().pick(list), "c");
    EXPECT_EQ(SecureGenerator().pick(list), "a");
    EXPECT_EQ(SecureGenerator().pick(list), "b");
    EXPECT_EQ(SecureGenerator().pick(list), "a");
}

TEST(SecurePick, ThrowsTheFailureOfTheSource)
{
    const ScriptedRandom random({}, FailsWith{-3});
    EXPECT_THAT([] { return SecureGenerator().pick(std::array{7, 8}); },
                Throws<GeneratorError>(Eq(GeneratorError::randomFailure(-3))));
}

TEST(SecurePickDeathTest, StopsTheProgramOnAnEmptyList)
{
    const ScriptedRandom random{};
    EXPECT_DEATH(static_cast<void>(SecureGenerator().pick(std::vector<int>())), "SecureGenerator");
}

TEST(SecureShuffle, OfAnEmptyListTakesNoDraw)
{
    const ScriptedRandom random{};
    std::vector<int> list;
    SecureGenerator().secureShuffle(list);
    EXPECT_THAT(list, ElementsAre());
    EXPECT_EQ(random.calls(), 0);
}

TEST(SecureShuffle, OfASingleElementTakesNoDraw)
{
    const ScriptedRandom random{};
    std::vector list{7};
    SecureGenerator().secureShuffle(list);
    EXPECT_THAT(list, ElementsAre(7));
    EXPECT_EQ(random.calls(), 0);
}

struct PairOrder
{
    const char* name;
    std::uint64_t drawn;
    std::vector<int> order;
};

class SecureShuffleOfTwo : public testing::TestWithParam<PairOrder>
{
};

TEST_P(SecureShuffleOfTwo, TakesOneDrawWithABoundOfTwo)
{
    const ScriptedRandom random{GetParam().drawn};
    std::vector list{7, 8};
    SecureGenerator().secureShuffle(list);
    EXPECT_EQ(list, GetParam().order);
    EXPECT_EQ(random.calls(), 1);
}

INSTANTIATE_TEST_SUITE_P(All, SecureShuffleOfTwo,
                         testing::Values(PairOrder{"SwapsOnZero", 0, {8, 7}},
                                         PairOrder{"KeepsOnOne", 1, {7, 8}},
                                         PairOrder{"SwapsOnTwo", 2, {8, 7}},
                                         PairOrder{"KeepsOnThree", 3, {7, 8}}),
                         rowName);

struct Permutation
{
    const char* name;
    std::vector<std::uint64_t> drawn;
    std::string order;
};

class SecureShuffleOfFive : public testing::TestWithParam<Permutation>
{
};

TEST_P(SecureShuffleOfFive, SwapsFromTheEndToTheFront)
{
    const ScriptedRandom random(GetParam().drawn);
    std::string list = "abcde";
    SecureGenerator().secureShuffle(list);
    EXPECT_EQ(list, GetParam().order);
    EXPECT_EQ(random.calls(), 4);
}

INSTANTIATE_TEST_SUITE_P(All, SecureShuffleOfFive,
                         testing::Values(Permutation{"EachWithItself", {4, 3, 2, 1}, "abcde"},
                                         Permutation{"EachWithTheFirst", {0, 0, 0, 0}, "bcdea"},
                                         Permutation{"Reversal", {0, 1, 2, 1}, "edcba"},
                                         Permutation{"Mixed", {1, 3, 0, 0}, "ecadb"},
                                         Permutation{"BoundsFiveToTwo", {5, 4, 3, 2}, "bcdea"}),
                         rowName);

TEST(SecureShuffle, ReachesEveryOrderByExactlyOneScript)
{
    std::set<std::string> orders;
    for (std::uint64_t i = 0; i < 24; ++i) {
        const ScriptedRandom random{i / 6, i % 6 / 2, i % 2};
        std::string list = "abcd";
        SecureGenerator().secureShuffle(list);
        EXPECT_TRUE(std::ranges::is_permutation(list, std::string("abcd"))) << list;
        orders.insert(list);
    }
    EXPECT_EQ(orders.size(), 24U);
}

TEST(SecureShuffle, KeepsTheSwapsMadeBeforeAFailure)
{
    const ScriptedRandom random({0}, FailsWith{-9});
    std::string list = "abcd";
    EXPECT_THAT([&list] { SecureGenerator().secureShuffle(list); },
                Throws<GeneratorError>(Eq(GeneratorError::randomFailure(-9))));
    EXPECT_EQ(list, "dbca");
    EXPECT_EQ(random.calls(), 2);
}

} // namespace
