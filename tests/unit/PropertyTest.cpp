// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Generates secrets with random settings and checks every property of each result. To reproduce a
// failure, set MORVANE_PROPERTY_SEED to the number that the test printed.

#include "Model/GeneratorError.h"
#include "Printing.h"
#include "ScriptedRandom.h"
#include "Services/SecureGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

static_assert(std::is_nothrow_copy_constructible_v<GeneratorError>);

namespace {

using ::PrintTo;

constexpr int rounds = 1'000'000;

std::uint64_t chosenSeed()
{
    // The program has no other thread yet that could change the environment.
    // NOLINTNEXTLINE(concurrency-mt-unsafe)
    const char* const text = std::getenv("MORVANE_PROPERTY_SEED");
    if (text != nullptr)
        return std::stoull(text);
    std::random_device device;
    return (std::uint64_t{device()} << 32U) | device();
}

/// How the random source behaves during one generation.
struct SourceBehavior
{
    /// The index, from 0, of the draw that fails. Rejected values do not count as draws.
    std::optional<std::int64_t> failsAt;
    std::int32_t status = 0;
    /// How many of 16 requests yield a value that every bound rejects.
    unsigned int rejected = 0;
};

class Chooser final
{
public:
    explicit Chooser(std::uint64_t seed)
        : m_engine(seed)
    {
    }

    /// A whole number from `low` to `high`.
    std::int64_t number(std::int64_t low, std::int64_t high)
    {
        const auto count = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<std::int64_t>(m_engine() % count);
    }

    bool oneIn(std::int64_t count) { return number(1, count) == 1; }

    std::uint64_t bits() { return m_engine(); }

    GeneratorSettings settings()
    {
        return {
            .mode = oneIn(2) ? GeneratorMode::password : GeneratorMode::passphrase,
            .length = oneIn(4) ? number(-3, 5) : number(-3, 70),
            .lowercase = oneIn(2),
            .uppercase = oneIn(2),
            .numbers = oneIn(2),
            .symbols = oneIn(2),
            .avoidAmbiguous = oneIn(2),
            .requireEveryGroup = oneIn(2),
            .wordCount = number(0, 10),
            .separator = separator(),
            .capitalizeWords = oneIn(2),
            .appendNumber = oneIn(2),
        };
    }

    SourceBehavior behavior()
    {
        SourceBehavior behavior;
        if (oneIn(8)) {
            behavior.failsAt = number(0, 40);
            do
                behavior.status = static_cast<std::int32_t>(bits());
            while (behavior.status == 0);
        }
        if (oneIn(8))
            behavior.rejected = static_cast<unsigned int>(number(1, 8));
        return behavior;
    }

private:
    QString separator()
    {
        static const std::array separators{
            u"-"_s,
            u""_s,
            u" "_s,
            u" + "_s,
            u"x"_s,
            u"7"_s,
            u"tau"_s,
            u"A"_s,
            u"\u00e4"_s,
            u"a\u0308"_s,
            u"\u0308"_s,
            u"\U0001f511"_s,
            u"\u200d"_s,
            u"\r\n"_s,
            u"\U0001f1e9\U0001f1ea"_s,
            u"%1"_s,
            QString(QChar(0)),
            QString(QChar(0xd83d)),
            u"---------"_s,
            u"\u202e"_s,
        };
        return separators.at(static_cast<std::size_t>(number(0, std::ssize(separators) - 1)));
    }

    std::mt19937_64 m_engine;
};

struct Outcome
{
    std::variant<QString, GeneratorError> result;
    std::int64_t requests = 0;
    std::int64_t rejected = 0;
};

Outcome generate(const GeneratorSettings& settings, const SourceBehavior& behavior,
                 Chooser& chooser)
{
    std::int64_t accepted = 0;
    std::int64_t rejected = 0;
    const ScriptedRandom random([&](std::uint64_t& value) -> std::int32_t {
        if (chooser.number(1, 16) <= behavior.rejected) {
            ++rejected;
            value = std::numeric_limits<std::uint64_t>::max();
            return 0;
        }
        if (accepted++ == behavior.failsAt)
            return behavior.status;
        value = chooser.bits();
        return 0;
    });
    try {
        QString text = SecureGenerator().generate(settings);
        return {.result = std::move(text), .requests = random.calls(), .rejected = rejected};
    } catch (const GeneratorError& error) {
        return {.result = error, .requests = random.calls(), .rejected = rejected};
    }
}

std::vector<std::string_view> groupsOf(const GeneratorSettings& settings)
{
    const bool unambiguous = settings.avoidAmbiguous;
    std::vector<std::string_view> groups;
    if (settings.lowercase)
        groups.emplace_back(unambiguous ? "abcdefghijkmnpqrstuvwxyz"
                                        : "abcdefghijklmnopqrstuvwxyz");
    if (settings.uppercase)
        groups.emplace_back(unambiguous ? "ABCDEFGHJKLMNPQRSTUVWXYZ"
                                        : "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    if (settings.numbers)
        groups.emplace_back(unambiguous ? "23456789" : "0123456789");
    if (settings.symbols)
        groups.emplace_back("!@#$%&*+-=?_~");
    return groups;
}

std::int64_t expectedDraws(const GeneratorSettings& settings)
{
    if (settings.mode == GeneratorMode::passphrase)
        return settings.wordCount + (settings.appendNumber ? 1 : 0);
    return settings.length > 0 ? 2 * settings.length - 1 : 0;
}

/// The error that the settings or the source's behaviour cause, if any.
std::optional<GeneratorError> expectedError(const GeneratorSettings& settings,
                                            const SourceBehavior& behavior)
{
    if (settings.mode == GeneratorMode::password) {
        const auto groupCount = std::ssize(groupsOf(settings));
        if (groupCount == 0)
            return GeneratorError::noCharacterSet();
        if (settings.requireEveryGroup && settings.length < groupCount)
            return GeneratorError::lengthTooShort(groupCount);
    }
    if (behavior.failsAt && *behavior.failsAt < expectedDraws(settings))
        return GeneratorError::randomFailure(behavior.status);
    return std::nullopt;
}

/// The number of requests to the source, without those that yield rejected values.
std::int64_t expectedRequests(const GeneratorSettings& settings, const SourceBehavior& behavior)
{
    const auto error = expectedError(settings, behavior);
    if (!error)
        return expectedDraws(settings);
    return error->randomStatus() ? behavior.failsAt.value_or(0) + 1 : 0;
}

bool isValidPassword(const std::string& text, const GeneratorSettings& settings)
{
    if (std::ssize(text) != std::max<qint64>(settings.length, 0))
        return false;
    const auto groups = groupsOf(settings);
    const auto isIn = [](std::string_view group) {
        return [group](char c) { return group.find(c) != std::string_view::npos; };
    };
    const bool allKnown = std::ranges::all_of(text, [&](char c) {
        return std::ranges::any_of(groups, [&](std::string_view group) { return isIn(group)(c); });
    });
    const bool allPresent = std::ranges::all_of(
        groups, [&](std::string_view group) { return std::ranges::any_of(text, isIn(group)); });
    return allKnown && (allPresent || !settings.requireEveryGroup);
}

bool isNumberUpTo99(QStringView text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= 0 && number <= 99 && text == QString::number(number);
}

// A separator may be empty or equal a word or a number, so a text can be parsed in several ways.
// The function tries all ways together: `places` holds the ends of all prefixes that parse.
bool isValidPassphrase(QStringView text, const GeneratorSettings& settings)
{
    std::vector<qsizetype> places{0};
    for (qint64 i = 0; i < settings.wordCount; ++i) {
        std::vector<qsizetype> next;
        for (qsizetype place : places) {
            if (i > 0) {
                if (!text.sliced(place).startsWith(settings.separator))
                    continue;
                place += settings.separator.size();
            }
            for (const std::string_view word : SecureGenerator::words) {
                const auto size = static_cast<qsizetype>(word.size());
                // NOLINTNEXTLINE(bugprone-suspicious-stringview-data-usage): the size is passed too
                const QLatin1String letters(word.data(), size);
                const QStringView rest = text.sliced(place);
                if (rest.isEmpty())
                    break;
                const QChar initial(letters.front());
                if (rest.front() == (settings.capitalizeWords ? initial.toUpper() : initial)
                    && rest.sliced(1).startsWith(letters.sliced(1)))
                    next.push_back(place + size);
            }
        }
        places = std::move(next);
    }
    return std::ranges::any_of(places, [&](qsizetype place) {
        const QStringView rest = text.sliced(place);
        if (!settings.appendNumber)
            return rest.isEmpty();
        return rest.startsWith(settings.separator)
               && isNumberUpTo99(rest.sliced(settings.separator.size()));
    });
}

bool isValidSecret(const QString& text, const GeneratorSettings& settings)
{
    if (settings.mode == GeneratorMode::passphrase)
        return isValidPassphrase(text, settings);
    // A character beyond ASCII becomes several bytes, none of which is in any group.
    return isValidPassword(text.toStdString(), settings);
}

testing::AssertionResult isExpected(const Outcome& outcome, const GeneratorSettings& settings,
                                    const SourceBehavior& behavior)
{
    if (outcome.requests - outcome.rejected != expectedRequests(settings, behavior))
        return testing::AssertionFailure()
               << outcome.requests << " requests, " << outcome.rejected << " of them rejected";

    const auto expected = expectedError(settings, behavior);
    if (const auto* const error = std::get_if<GeneratorError>(&outcome.result)) {
        if (expected == *error)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << testing::PrintToString(*error);
    }
    const auto& text = std::get<QString>(outcome.result);
    if (!expected && isValidSecret(text, settings))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << testing::PrintToString(text);
}

TEST(AnySettings, YieldTheExpectedErrorOrAValidSecret)
{
    const std::uint64_t seed = chosenSeed();
    std::cout << "MORVANE_PROPERTY_SEED=" << seed << '\n';
    Chooser chooser(seed);
    for (int round = 0; round < rounds; ++round) {
        const GeneratorSettings settings = chooser.settings();
        const SourceBehavior behavior = chooser.behavior();
        const Outcome outcome = generate(settings, behavior, chooser);
        ASSERT_TRUE(isExpected(outcome, settings, behavior))
            << "seed " << seed << ", round " << round << ": " << testing::PrintToString(settings);
    }
}

struct InvalidSecret
{
    const char* name;
    GeneratorSettings settings;
    QString text;
};

/// Texts that `isValidSecret` must reject.
class InvalidSecretTest : public testing::TestWithParam<InvalidSecret>
{
};

TEST_P(InvalidSecretTest, IsRejected)
{
    EXPECT_FALSE(isValidSecret(GetParam().text, GetParam().settings));
}

constexpr GeneratorMode passphrase = GeneratorMode::passphrase;

INSTANTIATE_TEST_SUITE_P(
    OfPassword, InvalidSecretTest,
    testing::Values(InvalidSecret{"TooShort", {.length = 5}, u"aA2!"_s},
                    InvalidSecret{"TooLong", {.length = 4}, u"aA2!a"_s},
                    InvalidSecret{"LookAlike", {.length = 4}, u"aA0!"_s},
                    InvalidSecret{"MissingGroup", {.length = 4}, u"aA2b"_s},
                    InvalidSecret{"ForeignGroup", {.length = 4, .symbols = false}, u"aA2!"_s},
                    InvalidSecret{"ForeignCharacter", {.length = 5}, u"aA2!|"_s},
                    InvalidSecret{"BeyondAscii", {.length = 5}, u"aA2!\u00e4"_s}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    OfPassphrase, InvalidSecretTest,
    testing::Values(
        InvalidSecret{"TooFewWords", {.mode = passphrase, .wordCount = 3}, u"tau-tau-7"_s},
        InvalidSecret{"TooManyWords", {.mode = passphrase, .wordCount = 1}, u"tau-tau-7"_s},
        InvalidSecret{"ForeignWord", {.mode = passphrase, .wordCount = 1}, u"tee-7"_s},
        InvalidSecret{"MissingCapital",
                      {.mode = passphrase, .wordCount = 2, .capitalizeWords = true},
                      u"Tau-tau-7"_s},
        InvalidSecret{"UnwantedCapital", {.mode = passphrase, .wordCount = 1}, u"Tau-7"_s},
        InvalidSecret{"MissingNumber", {.mode = passphrase, .wordCount = 1}, u"tau"_s},
        InvalidSecret{"UnwantedNumber",
                      {.mode = passphrase, .wordCount = 1, .appendNumber = false},
                      u"tau-7"_s},
        InvalidSecret{"PaddedNumber", {.mode = passphrase, .wordCount = 1}, u"tau-07"_s},
        InvalidSecret{"NumberOfThreeDigits", {.mode = passphrase, .wordCount = 1}, u"tau-100"_s},
        InvalidSecret{"NumberWithoutSeparator", {.mode = passphrase, .wordCount = 1}, u"tau7"_s}),
    rowName);

} // namespace
