// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Generates passwords and passphrases, every choice drawn from the system's random source:
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

/// The generation engine. An empty value: it keeps no seed, no buffer and no state between calls.
///
/// Errors of the caller (a non-positive bound, a negative word count, a length no memory can hold)
/// stop the program.
class SecureGenerator final
{
public:
    /// The character groups of a password, in the order in which their characters are drawn from.
    static constexpr std::string_view lowercase = "abcdefghijklmnopqrstuvwxyz";
    static constexpr std::string_view uppercase = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    static constexpr std::string_view numbers = "0123456789";
    static constexpr std::string_view symbols = "!@#$%&*+-=?_~";

    /// Characters that are easily taken for one another, also such as no group holds.
    static constexpr std::string_view ambiguous = "Il1O0o|`'\"";

    /// The words of a passphrase. Their order is part of the behaviour: "tau" stands before
    /// "tanne".
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

    /// A fresh secret of the settings' mode. Throws `GeneratorError`, never returns a partial
    /// result; the settings are taken as they are, without clamping.
    [[nodiscard]] QString generate(const GeneratorSettings& settings) const;

    /// The size in bits, 0 or more, of the space that the settings draw from: word count and number
    /// for a passphrase, perceived characters of `text` times the groups' full sizes for a
    /// password.
    [[nodiscard]] double estimatedEntropy(const QString& text,
                                          const GeneratorSettings& settings) const;

    /// The rating of an entropy in bits: below 45 weak, below 65 fair, below 90 good, else strong.
    [[nodiscard]] PasswordStrength strength(double entropy) const;

private:
    friend struct SecureGeneratorAccess; // lets the tests reach the primitives

    [[nodiscard]] QString password(const GeneratorSettings& settings) const;
    [[nodiscard]] QString passphrase(const GeneratorSettings& settings) const;

    /// An index drawn uniformly from 0 up to but not including `upperBound`, which is positive.
    /// Throws `randomFailure`. One request of 8 bytes per draw; see the definition for the method.
    [[nodiscard]] std::int64_t secureIndex(std::int64_t upperBound) const;

    /// An element of `list`, which is not empty, drawn uniformly. Throws `randomFailure`.
    template<std::ranges::random_access_range List>
    [[nodiscard]] std::ranges::range_value_t<List> pick(const List& list) const
    {
        return std::ranges::begin(list)[secureIndex(std::ranges::ssize(list))];
    }

    /// Puts `list` in an order drawn uniformly from all orders: the shuffle of Fisher and Yates,
    /// run from the end, one draw per element but the first. After a `randomFailure` the list is
    /// left partly shuffled.
    template<std::ranges::random_access_range List>
    void secureShuffle(List& list) const
    {
        const auto elements = std::ranges::begin(list);
        for (auto i = std::ranges::ssize(list) - 1; i >= 1; --i)
            std::swap(elements[i], elements[secureIndex(i + 1)]);
    }
};
