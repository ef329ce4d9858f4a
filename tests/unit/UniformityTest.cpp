// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Tests that the choices drawn from the system's random source are uniform, and that the
// chi-squared test detects choices that are not uniform.

#include "ChiSquare.h"
#include "Printing.h"
#include "Services/SecureGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

static_assert(std::is_empty_v<SecureGenerator>);
static_assert(ChiSquare::significance * 20 < 1e-6);

namespace {

using ::PrintTo;

using Counts = std::vector<std::int64_t>;

constexpr std::int64_t draws = 10'000'000;

std::size_t cell(std::int64_t index)
{
    return static_cast<std::size_t>(index);
}

/// The index of `text` in the alphabetical list of the 24 permutations of "abcd".
std::size_t permutationNumber(std::string_view text)
{
    static const auto numbers = [] {
        std::map<std::string, std::size_t, std::less<>> result;
        std::string order = "abcd";
        do {
            result.emplace(order, result.size());
        } while (std::ranges::next_permutation(order).found);
        return result;
    }();
    return numbers.find(text)->second;
}

char groupOf(char c)
{
    if (SecureGenerator::lowercase.find(c) != std::string_view::npos)
        return 'a';
    if (SecureGenerator::uppercase.find(c) != std::string_view::npos)
        return 'b';
    if (SecureGenerator::numbers.find(c) != std::string_view::npos)
        return 'c';
    return 'd';
}

/// Generates a password and replaces each character by a letter (a to d) for its group.
std::string groupsOfPassword(const GeneratorSettings& settings)
{
    std::string groups = SecureGenerator().generate(settings).toStdString();
    std::ranges::transform(groups, groups.begin(), groupOf);
    return groups;
}

struct Quantile
{
    const char* name;
    std::int64_t degrees;
    double x;
    double tail;
};

class ChiSquareTail : public testing::TestWithParam<Quantile>
{
};

TEST_P(ChiSquareTail, AgreesWithPrintedTables)
{
    EXPECT_NEAR(ChiSquare::upperTail(GetParam().degrees, GetParam().x), GetParam().tail,
                GetParam().tail * 1e-3);
}

INSTANTIATE_TEST_SUITE_P(All, ChiSquareTail,
                         testing::Values(Quantile{"Degrees1", 1, 3.8415, 0.05},
                                         Quantile{"Degrees1Far", 1, 10.8276, 0.001},
                                         Quantile{"Degrees2", 2, 5.9915, 0.05},
                                         Quantile{"Degrees2Far", 2, 13.8155, 0.001},
                                         Quantile{"Degrees3", 3, 7.8147, 0.05},
                                         Quantile{"Degrees9", 9, 16.9190, 0.05},
                                         Quantile{"Degrees9Far", 9, 27.8772, 0.001},
                                         Quantile{"Degrees10", 10, 18.3070, 0.05},
                                         Quantile{"Degrees30", 30, 43.7730, 0.05},
                                         Quantile{"Degrees100", 100, 124.3421, 0.05},
                                         Quantile{"Degrees100Far", 100, 149.4493, 0.001}),
                         rowName);

class IndexUniformity : public testing::TestWithParam<std::int64_t>
{
};

TEST_P(IndexUniformity, HoldsForTheSecureIndex)
{
    Counts counts(cell(GetParam()));
    for (std::int64_t i = 0; i < draws; ++i)
        ++counts.at(cell(SecureGenerator().secureIndex(GetParam())));
    EXPECT_GT(ChiSquare::pValue(counts), ChiSquare::significance)
        << "statistic " << ChiSquare::statistic(counts);
}

INSTANTIATE_TEST_SUITE_P(OfBound, IndexUniformity, testing::Values(2, 3, 10, 69, 75, 76, 100),
                         testing::PrintToStringParamName());

TEST(ShuffleUniformity, HoldsForAllOrdersOfFourElements)
{
    Counts counts(24);
    for (std::int64_t i = 0; i < 3'600'000; ++i) {
        std::string order = "abcd";
        SecureGenerator().secureShuffle(order);
        ++counts.at(permutationNumber(order));
    }
    EXPECT_GT(ChiSquare::pValue(counts), ChiSquare::significance)
        << "statistic " << ChiSquare::statistic(counts);
}

TEST(GuaranteeUniformity, HoldsForAllOrdersOfTheGroupsInFourCharacters)
{
    Counts counts(24);
    for (std::int64_t i = 0; i < 480'000; ++i)
        ++counts.at(permutationNumber(groupsOfPassword({.length = 4})));
    EXPECT_GT(ChiSquare::pValue(counts), ChiSquare::significance)
        << "statistic " << ChiSquare::statistic(counts);
}

// If a password has a single character of a group, that character is the guaranteed one. A uniform
// shuffle moves that character to each of the ten places with the same probability, so the place is
// uniform over independent passwords. Passwords with more characters of the group are not counted,
// because the places of those characters depend on each other.
TEST(GuaranteeUniformity, HoldsForThePlacesOfTheGroupsInTenCharacters)
{
    std::array<Counts, 4> counts;
    counts.fill(Counts(10));
    for (std::int64_t i = 0; i < 540'000; ++i) {
        const std::string groups = groupsOfPassword({.length = 10});
        for (std::size_t group = 0; group < counts.size(); ++group) {
            const char letter = static_cast<char>('a' + static_cast<int>(group));
            if (std::ranges::count(groups, letter) == 1)
                ++counts.at(group).at(groups.find(letter));
        }
    }
    for (const auto& places : counts) {
        EXPECT_GT(std::accumulate(places.begin(), places.end(), std::int64_t{0}), 10'000);
        EXPECT_GT(ChiSquare::pValue(places), ChiSquare::significance)
            << "statistic " << ChiSquare::statistic(places);
    }
}

// Variants of the algorithms above with deliberate errors. They draw from a generator with a fixed
// seed, so that every run has the same result.

class BiasedIndex : public testing::TestWithParam<std::int64_t>
{
};

TEST_P(BiasedIndex, OfEightBitsIsDetected)
{
    std::mt19937_64 engine;
    Counts counts(cell(GetParam()));
    for (std::int64_t i = 0; i < draws; ++i) {
        const auto value = static_cast<std::uint8_t>(engine());
        ++counts.at(cell(value % GetParam()));
    }
    EXPECT_LT(ChiSquare::pValue(counts), ChiSquare::significance)
        << "statistic " << ChiSquare::statistic(counts);
}

INSTANTIATE_TEST_SUITE_P(OfBound, BiasedIndex, testing::Values(3, 10, 69, 75, 76, 100),
                         testing::PrintToStringParamName());

TEST(BiasedShuffle, WithPartnersFromTheWholeListIsDetected)
{
    std::mt19937_64 engine;
    Counts counts(24);
    for (std::int64_t i = 0; i < 240'000; ++i) {
        std::string order = "abcd";
        for (char& element : order)
            std::swap(element, order.at(engine() % 4));
        ++counts.at(permutationNumber(order));
    }
    EXPECT_LT(ChiSquare::pValue(counts), ChiSquare::significance);
}

TEST(BiasedShuffle, ThatNeverKeepsAnElementIsDetected)
{
    std::mt19937_64 engine;
    Counts counts(24);
    for (std::int64_t i = 0; i < 240'000; ++i) {
        std::string order = "abcd";
        for (std::size_t last = 3; last >= 1; --last)
            std::swap(order.at(last), order.at(engine() % last));
        ++counts.at(permutationNumber(order));
    }
    EXPECT_LT(ChiSquare::pValue(counts), ChiSquare::significance);
}

} // namespace
