// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorSettings.h"

#include <QStringView>

#include <cstddef>
#include <cstdint>
#include <vector>

/// Decides where the lines of a displayed secret begin and end.
namespace LineBreaks {

/// The greatest number of lines on which a secret is displayed.
inline constexpr int maximumLines = 3;

/// The greatest number of grapheme clusters of a secret in the larger font.
inline constexpr qsizetype shortSecretLimit = 38;

/// The positions in `secret` at which the words and the number of a passphrase begin, with 0 first;
/// empty if `secret` is not a passphrase of at least three words and numbers. The separator may be
/// any text that is the same in all places, and belongs to the word before it.
[[nodiscard]] std::vector<qsizetype> wordStarts(QStringView secret);

/// Divides a row of pieces into the fewest lines that are no wider than `width`, and among these
/// divisions chooses the one with the most even lines. `edges` has the left edge of each piece,
/// beginning with 0, and the right edge of the last piece. Returns for each line the index of the
/// piece after its last piece; empty if `maximumLines` are not enough.
[[nodiscard]] std::vector<std::size_t> balancedLines(const std::vector<double>& edges,
                                                     double width);

/// Whether a secret has at most `shortSecretLimit` grapheme clusters or more.
enum class SecretLength : std::uint8_t { atMostLimit, aboveLimit };

/// Whether a secret of `settings` can have this length.
[[nodiscard]] bool canOccur(SecretLength length, const GeneratorSettings& settings);

/// A number of lines, at most `maximumLines`, on which every secret of `settings` and `length` fits
/// if a line has `columns` characters. `separatorColumns` is the width of the separator in
/// characters.
[[nodiscard]] int linesNeeded(SecretLength length, const GeneratorSettings& settings,
                              qsizetype columns, qsizetype separatorColumns);

} // namespace LineBreaks
