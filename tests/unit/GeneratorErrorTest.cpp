// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorError.h"

#include "Printing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <limits>
#include <optional>
#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(std::is_base_of_v<std::exception, GeneratorError>);
static_assert(std::is_final_v<GeneratorError>);
static_assert(std::is_nothrow_copy_constructible_v<GeneratorError>);
static_assert(std::is_nothrow_copy_assignable_v<GeneratorError>);
static_assert(!std::is_default_constructible_v<GeneratorError>);

namespace {

using ::PrintTo;

constexpr auto lowestLength = std::numeric_limits<std::int64_t>::min();
constexpr auto highestLength = std::numeric_limits<std::int64_t>::max();
constexpr auto lowestStatus = std::numeric_limits<std::int32_t>::min();

struct Message
{
    const char* name;
    GeneratorError error;
    QString text;
};

class GeneratorErrorDescription : public testing::TestWithParam<Message>
{
};

TEST_P(GeneratorErrorDescription, IsTheGermanMessage)
{
    EXPECT_EQ(GetParam().error.errorDescription(), GetParam().text);
}

const QString randomText
    = u"Der sichere Zufallsgenerator von macOS konnte nicht verwendet werden."_s;

INSTANTIATE_TEST_SUITE_P(
    All, GeneratorErrorDescription,
    testing::Values(
        Message{"LengthOfThree", GeneratorError::lengthTooShort(3),
                u"Die Länge muss mindestens 3 betragen, damit jede Gruppe vorkommen kann."_s},
        Message{"LengthOfFour", GeneratorError::lengthTooShort(4),
                u"Die Länge muss mindestens 4 betragen, damit jede Gruppe vorkommen kann."_s},
        Message{"LengthWithoutDigitGrouping", GeneratorError::lengthTooShort(1234567),
                u"Die Länge muss mindestens 1234567 betragen, damit jede Gruppe vorkommen kann."_s},
        Message{"LengthBelowZero", GeneratorError::lengthTooShort(-2),
                u"Die Länge muss mindestens -2 betragen, damit jede Gruppe vorkommen kann."_s},
        Message{
            "LowestLength", GeneratorError::lengthTooShort(lowestLength),
            u"Die Länge muss mindestens -9223372036854775808 betragen, damit jede Gruppe vorkommen kann."_s},
        Message{
            "HighestLength", GeneratorError::lengthTooShort(highestLength),
            u"Die Länge muss mindestens 9223372036854775807 betragen, damit jede Gruppe vorkommen kann."_s},
        Message{"RandomFailureBelowZero", GeneratorError::randomFailure(-50), randomText},
        Message{"RandomFailureAboveZero", GeneratorError::randomFailure(5), randomText},
        Message{"NoCharacterSet", GeneratorError::noCharacterSet(),
                u"Bitte mindestens eine Zeichengruppe aktivieren."_s}),
    rowName);

TEST(GeneratorError, KeepsTheMinimumLengthOnly)
{
    const auto error = GeneratorError::lengthTooShort(highestLength);
    EXPECT_EQ(error.minimumLength(), highestLength);
    EXPECT_EQ(error.randomStatus(), std::nullopt);
}

TEST(GeneratorError, KeepsTheRandomStatusOnly)
{
    const auto error = GeneratorError::randomFailure(lowestStatus);
    EXPECT_EQ(error.randomStatus(), lowestStatus);
    EXPECT_EQ(error.minimumLength(), std::nullopt);
}

TEST(GeneratorError, KeepsNothingForAMissingCharacterSet)
{
    const auto error = GeneratorError::noCharacterSet();
    EXPECT_EQ(error.minimumLength(), std::nullopt);
    EXPECT_EQ(error.randomStatus(), std::nullopt);
}

TEST(GeneratorError, EqualsOnlyTheSameKindWithTheSameNumber)
{
    const std::array errors{
        GeneratorError::lengthTooShort(3), GeneratorError::lengthTooShort(4),
        GeneratorError::randomFailure(3),  GeneratorError::randomFailure(4),
        GeneratorError::noCharacterSet(),
    };
    for (std::size_t i = 0; i < errors.size(); ++i) {
        for (std::size_t j = 0; j < errors.size(); ++j)
            EXPECT_EQ(errors.at(i) == errors.at(j), i == j) << i << " and " << j;
    }
}

TEST(GeneratorError, NamesItsKindForDebugging)
{
    EXPECT_STREQ(GeneratorError::lengthTooShort(4).what(), "lengthTooShort");
    EXPECT_STREQ(GeneratorError::randomFailure(-1).what(), "randomFailure");
    EXPECT_STREQ(GeneratorError::noCharacterSet().what(), "noCharacterSet");
}

TEST(GeneratorError, IsCaughtAsAnException)
{
    const auto fail = [] { throw GeneratorError::noCharacterSet(); };
    EXPECT_THAT(fail, testing::ThrowsMessage<std::exception>("noCharacterSet"));
}

} // namespace
