// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Generates passwords and passphrases. Every choice is drawn from the system's random source:
//
//     const SecureGenerator generator;
//     const QString secret = generator.generate(settings); // throws GeneratorError
//     const double bits = generator.estimatedEntropy(secret, settings);

#include "Model/GeneratorSettings.h"
#include "Model/PasswordStrength.h"

#include <QString>

#include <array>
#include <cstdint>
#include <ranges>
#include <string_view>
#include <utility>

/// The generation engine. The class has no data members and keeps no state between calls.
///
/// Errors of the caller (a non-positive bound, a negative word count, a length that exceeds the
/// memory) abort the program.
class SecureGenerator final
{
public:
    /// The character groups of a password, in the order in which a password draws from them.
    static constexpr std::string_view lowercase = "abcdefghijklmnopqrstuvwxyz";
    static constexpr std::string_view uppercase = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    static constexpr std::string_view numbers = "0123456789";
    static constexpr std::string_view symbols = "!@#$%&*+-=?_~";

    /// Look-alike characters. Some of them are in no group.
    static constexpr std::string_view ambiguous = "Il1O0o|`'\"";

    /// The words of a passphrase. Their order is part of the behaviour, and not always
    /// alphabetical: "tau" stands before "tanne".
    static constexpr std::array<std::string_view, 76> words{
        "abend",  "anker",   "apfel",   "atlas",     "bambus",  "beere",   "birke",     "blitz",
        "brise",  "bruecke", "diamant", "dohle",     "drossel", "duene",   "eiche",     "eule",
        "feder",  "felsen",  "fjord",   "flamme",    "flieder", "fluss",   "funke",     "garten",
        "glanz",  "hafen",   "hain",    "herbst",    "himmel",  "honig",   "insel",     "jasmin",
        "kiefer", "kiesel",  "klang",   "kleeblatt", "komet",   "koralle", "kristall",  "linde",
        "lotus",  "mond",    "moos",    "morgen",    "muschel", "nebel",   "nordlicht", "oase",
        "palme",  "perle",   "pfad",    "planet",    "quelle",  "regen",   "rose",      "saphir",
        "schilf", "schnee",  "segel",   "sonne",     "stern",   "strand",  "tau",       "tanne",
        "tulpe",  "ufer",    "vogel",   "wald",      "welle",   "wiese",   "wind",      "wolke",
        "zeder",  "zeit",    "zirbe",   "zitrone",
    };

    /// Generates a secret of the settings' mode. Throws `GeneratorError` and never returns a
    /// partial result. Does not clamp the settings to a range.
    [[nodiscard]] QString generate(const GeneratorSettings& settings) const;

    /// The estimated entropy in bits. A passphrase has log2(76) bits per word of the settings and
    /// log2(100) for the number, so a negative word count can give a negative entropy. A password
    /// has log2(n) bits per grapheme cluster of `text`, where the enabled groups have n characters.
    [[nodiscard]] double estimatedEntropy(const QString& text,
                                          const GeneratorSettings& settings) const;

    /// The rating of an entropy in bits: below 45 weak, below 65 fair, below 90 good, else strong.
    [[nodiscard]] PasswordStrength strength(double entropy) const;

    /// An index drawn uniformly from 0 up to but not including `upperBound`, which is positive, by
    /// rejection sampling (J. von Neumann, "Various Techniques Used in Connection with Random
    /// Digits", 1951). Requests 8 random bytes per draw. Throws `randomFailure`.
    [[nodiscard]] std::int64_t secureIndex(std::int64_t upperBound) const;

    /// An element of `list`, which is not empty, drawn uniformly. Throws `randomFailure`.
    template<std::ranges::random_access_range List>
    [[nodiscard]] std::ranges::range_value_t<List> pick(const List& list) const
    {
        return std::ranges::begin(list)[secureIndex(std::ranges::ssize(list))];
    }

    /// Puts `list` in an order drawn uniformly from all orders: the Fisher-Yates shuffle, from the
    /// last element to the second, with one draw per element. Throws `randomFailure` and then
    /// leaves the list partly shuffled.
    template<std::ranges::random_access_range List>
    void secureShuffle(List& list) const
    {
        const auto elements = std::ranges::begin(list);
        for (auto i = std::ranges::ssize(list) - 1; i >= 1; --i)
            std::swap(elements[i], elements[secureIndex(i + 1)]);
    }

private:
    [[nodiscard]] QString password(const GeneratorSettings& settings) const;
    [[nodiscard]] QString passphrase(const GeneratorSettings& settings) const;
};
