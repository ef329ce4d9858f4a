// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Services/LineBreaks.h"

#include "Model/UnicodeText.h"
#include "Services/SecureGenerator.h"

#include <QLatin1String>

#include <algorithm>
#include <limits>
#include <ranges>
#include <string_view>

namespace LineBreaks {
namespace {

constexpr auto wordSize = [](std::string_view word) { return std::ssize(word); };
constexpr auto wordSizes
    = std::ranges::minmax(SecureGenerator::words | std::views::transform(wordSize));
constexpr qsizetype shortestNumber = 1;
constexpr qsizetype longestNumber = 2;

/// The fewest words and numbers of a passphrase. With fewer, the separator would occur once, and
/// any text between two words would be a separator.
constexpr std::size_t fewestParts = 3;

/// The length of the word at the start of `text`; 0 if there is none. No word of the list is the
/// beginning of another word.
qsizetype wordLength(QStringView text)
{
    const auto isAtStart = [text](std::string_view word) {
        return text.startsWith(QLatin1String(word.data(), static_cast<qsizetype>(word.size())),
                               Qt::CaseInsensitive);
    };
    const auto* const word = std::ranges::find_if(SecureGenerator::words, isAtStart);
    return word == SecureGenerator::words.end() ? 0 : std::ssize(*word);
}

bool isNumber(QStringView text)
{
    return !text.isEmpty() && text.size() <= longestNumber
           && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// `wordStarts` for a first word of `position` characters, with `separator` between all words.
std::vector<qsizetype> wordStarts(QStringView secret, qsizetype position, QStringView separator)
{
    std::vector<qsizetype> starts{0};
    while (position < secret.size()) {
        if (!secret.sliced(position).startsWith(separator))
            return {};
        position += separator.size();
        starts.push_back(position);
        const QStringView rest = secret.sliced(position);
        const qsizetype length = wordLength(rest);
        if (length == 0)
            return isNumber(rest) ? starts : std::vector<qsizetype>();
        position += length;
    }
    return starts;
}

/// Numbers of grapheme clusters.
struct Lengths
{
    qsizetype shortest;
    qsizetype longest;
};

qsizetype separatorCount(const GeneratorSettings& settings)
{
    return settings.wordCount - (settings.appendNumber ? 0 : 1);
}

/// The lengths of the shortest and of the longest secret of `settings`.
Lengths lengths(const GeneratorSettings& settings)
{
    if (settings.mode == GeneratorMode::password)
        return {.shortest = settings.length, .longest = settings.length};
    const qsizetype separators
        = separatorCount(settings) * UnicodeText::graphemeCount(settings.separator);
    return {
        .shortest = settings.wordCount * wordSizes.min + separators
                    + (settings.appendNumber ? shortestNumber : 0),
        .longest = settings.wordCount * wordSizes.max + separators
                   + (settings.appendNumber ? longestNumber : 0),
    };
}

} // namespace

std::vector<qsizetype> wordStarts(QStringView secret)
{
    const qsizetype first = wordLength(secret);
    for (qsizetype length = 0; first > 0 && first + length < secret.size(); ++length) {
        auto starts = wordStarts(secret, first, secret.sliced(first, length));
        if (starts.size() >= fewestParts)
            return starts;
    }
    return {};
}

std::vector<std::size_t> balancedLines(const std::vector<double>& edges, double width)
{
    const std::size_t end = edges.size() - 1;
    std::vector<std::size_t> best;
    double least = std::numeric_limits<double>::infinity();
    // The sum of the lines' widths is given, so the sum of their squares is least for even lines.
    // Of equally even divisions, the first one is chosen.
    const auto consider = [&](const std::vector<std::size_t>& ends) {
        double sum = 0;
        std::size_t start = 0;
        for (const std::size_t lineEnd : ends) {
            const double line = edges[lineEnd] - edges[start];
            if (line > width)
                return;
            sum += line * line;
            start = lineEnd;
        }
        if (sum < least - 1e-3) {
            least = sum;
            best = ends;
        }
    };

    consider({end});
    if (best.empty()) {
        for (std::size_t first = end - 1; first > 0; --first)
            consider({first, end});
    }
    if (best.empty()) {
        for (std::size_t second = end - 1; second > 1; --second) {
            for (std::size_t first = second - 1; first > 0; --first)
                consider({first, second, end});
        }
    }
    return best;
}

bool canOccur(SecretLength length, const GeneratorSettings& settings)
{
    const auto [shortest, longest] = lengths(settings);
    return length == SecretLength::aboveLimit ? longest > shortSecretLimit
                                              : shortest <= shortSecretLimit;
}

int linesNeeded(SecretLength length, const GeneratorSettings& settings, qsizetype columns,
                qsizetype separatorColumns)
{
    qsizetype longest = lengths(settings).longest;
    if (length == SecretLength::atMostLimit)
        longest = std::min(longest, shortSecretLimit);
    qsizetype longestPiece = 1;
    if (settings.mode == GeneratorMode::passphrase) {
        const qsizetype separator = UnicodeText::graphemeCount(settings.separator);
        longest += separatorCount(settings) * (separatorColumns - separator);
        longestPiece = wordSizes.max + separatorColumns;
    }
    // A line that ends because the next piece does not fit has fewer empty columns than this piece
    // has columns.
    int lines = 1;
    while (lines < maximumLines && longest > lines * columns - (lines - 1) * (longestPiece - 1))
        ++lines;
    return lines;
}

} // namespace LineBreaks
