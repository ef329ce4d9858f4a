// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Services/SecureGenerator.h"

#include "Model/GeneratorError.h"
#include "Model/UnicodeText.h"
#include "Platform/ProcessMemory.h"
#include "Platform/SecureRandom.h"
#include "Services/SecretText.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <new>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

static_assert(std::is_empty_v<SecureGenerator>);

namespace {

[[noreturn]] void stop(const char* file = __builtin_FILE(), int line = __builtin_LINE())
{
    std::cerr << "Fatal error: " << file << ':' << line << '\n';
    std::abort();
}

void precondition(bool holds, const char* file = __builtin_FILE(), int line = __builtin_LINE())
{
    if (!holds)
        stop(file, line);
}

constexpr qsizetype longestWord
    = std::ssize(*std::ranges::max_element(SecureGenerator::words, {}, &std::string_view::size));

struct CharacterGroup
{
    bool GeneratorSettings::* isEnabled;
    std::string_view characters;
    std::string unambiguousCharacters;
};

CharacterGroup characterGroup(bool GeneratorSettings::* isEnabled, std::string_view characters)
{
    std::string unambiguous(characters);
    std::erase_if(unambiguous, [](char character) {
        return SecureGenerator::ambiguous.find(character) != std::string_view::npos;
    });
    return {isEnabled, characters, unambiguous};
}

/// The characters of each enabled group, without look-alikes where the settings avoid them.
std::vector<std::string_view> enabledGroups(const GeneratorSettings& settings)
{
    // Built once, because removing the ambiguous characters takes 5 % of the generation time.
    static const std::array groups{
        characterGroup(&GeneratorSettings::lowercase, SecureGenerator::lowercase),
        characterGroup(&GeneratorSettings::uppercase, SecureGenerator::uppercase),
        characterGroup(&GeneratorSettings::numbers, SecureGenerator::numbers),
        characterGroup(&GeneratorSettings::symbols, SecureGenerator::symbols),
    };
    std::vector<std::string_view> enabled;
    for (const CharacterGroup& group : groups) {
        const std::string_view characters
            = settings.avoidAmbiguous ? group.unambiguousCharacters : group.characters;
        if (settings.*group.isEnabled && !characters.empty())
            enabled.push_back(characters);
    }
    return enabled;
}

qsizetype longestPassphrase(const GeneratorSettings& settings)
{
    qsizetype parts = 0;
    qsizetype length = 0;
    const bool isTooLong
        = qAddOverflow<qsizetype>(settings.wordCount, settings.appendNumber ? 1 : 0, &parts)
          || qMulOverflow(parts, longestWord + settings.separator.size(), &length);
    precondition(!isTooLong);
    return length;
}

} // namespace

QString SecureGenerator::generate(const GeneratorSettings& settings) const
try {
    return settings.mode == GeneratorMode::password ? password(settings) : passphrase(settings);
} catch (const std::bad_alloc&) {
    // The callers catch GeneratorError only, and could not continue without memory.
    stop();
}

QString SecureGenerator::password(const GeneratorSettings& settings) const
{
    const std::vector<std::string_view> groups = enabledGroups(settings);
    if (groups.empty())
        throw GeneratorError::noCharacterSet();
    if (settings.requireEveryGroup && settings.length < std::ssize(groups))
        throw GeneratorError::lengthTooShort(std::ssize(groups));

    QString result;
    auto wiping = qScopeGuard([&result] { SecretText::wipe(result); });
    // A text that outgrew its memory would leave a part of the secret in freed memory.
    result.reserve(std::max<qsizetype>(settings.length, std::ssize(groups)));
    if (settings.requireEveryGroup) {
        for (const std::string_view group : groups)
            result += QLatin1Char(pick(group));
    }
    std::string pool;
    for (const std::string_view group : groups)
        pool += group;
    while (result.size() < settings.length)
        result += QLatin1Char(pick(pool));

    // Without the shuffle, the guaranteed characters would always come first.
    secureShuffle(result);
    wiping.dismiss();
    return result;
}

QString SecureGenerator::passphrase(const GeneratorSettings& settings) const
{
    precondition(settings.wordCount >= 0);

    QString result;
    auto wiping = qScopeGuard([&result] { SecretText::wipe(result); });
    result.reserve(longestPassphrase(settings));
    for (std::int64_t i = 0; i < settings.wordCount; ++i) {
        if (i > 0)
            result += settings.separator;
        const std::string_view word = pick(words);
        const auto start = result.size();
        result += QLatin1String(word.data(), static_cast<qsizetype>(word.size()));
        if (settings.capitalizeWords)
            result[start] = result[start].toUpper();
    }
    if (settings.appendNumber) {
        const auto number = static_cast<std::size_t>(secureIndex(100));
        result += settings.separator;
        if (number >= 10)
            result += QLatin1Char(numbers[number / 10]);
        result += QLatin1Char(numbers[number % 10]);
    }
    wiping.dismiss();
    return result;
}

// Why every index is equally likely: the source yields each v from 0 to 2^64 - 1 with the same
// probability. `limit` is the largest multiple of `bound` that does not exceed 2^64 - 1, so
// 0 <= v < limit holds each remainder of v mod bound exactly limit / bound times. Any other v is
// rejected and drawn again, which happens with a probability of at most bound / 2^64.
//
// For a power of two, the top `bound` values are rejected although 2^64 is a multiple of `bound`.
// The cost of those draws is too small to measure, and the same rule serves every bound.
std::int64_t SecureGenerator::secureIndex(std::int64_t upperBound) const
{
    precondition(upperBound > 0);

    constexpr auto highest = std::numeric_limits<std::uint64_t>::max();
    const auto bound = static_cast<std::uint64_t>(upperBound);
    const std::uint64_t limit = highest - highest % bound;

    std::uint64_t value = 0;
    do {
        const auto status
            = Platform::fillSecureRandom(std::as_writable_bytes(std::span(&value, 1)));
        if (status != 0)
            throw GeneratorError::randomFailure(status);
    } while (value >= limit);
    const auto index = static_cast<std::int64_t>(value % bound);
    Platform::ProcessMemory::wipe(std::as_writable_bytes(std::span(&value, 1)));
    return index;
}

double SecureGenerator::estimatedEntropy(const QString& text,
                                         const GeneratorSettings& settings) const
{
    if (settings.mode == GeneratorMode::passphrase) {
        const double bits = static_cast<double>(settings.wordCount)
                            * std::log2(static_cast<double>(words.size()));
        return settings.appendNumber ? bits + std::log2(100.0) : bits;
    }

    // The groups' full sizes, also where the settings avoid ambiguous characters: the estimate
    // describes the kind of password, and stays the same when the user toggles that setting.
    std::size_t pool = 0;
    if (settings.lowercase)
        pool += 26;
    if (settings.uppercase)
        pool += 26;
    if (settings.numbers)
        pool += 10;
    if (settings.symbols)
        pool += symbols.size();
    if (pool == 0)
        return 0;
    return static_cast<double>(UnicodeText::graphemeCount(text))
           * std::log2(static_cast<double>(pool));
}

PasswordStrength SecureGenerator::strength(double entropy) const
{
    if (entropy < 45)
        return PasswordStrength::weak;
    if (entropy < 65)
        return PasswordStrength::fair;
    if (entropy < 90)
        return PasswordStrength::good;
    return PasswordStrength::strong;
}
