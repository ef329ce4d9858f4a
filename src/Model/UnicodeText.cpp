// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/UnicodeText.h"

#include <unicode/ubrk.h>

#include <algorithm>
#include <numeric>

namespace UnicodeText {
namespace {

/// An iterator over the grapheme clusters of `text`, whose characters must outlive the iterator.
icu::LocalUBreakIteratorPointer graphemeClusters(QStringView text)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::LocalUBreakIteratorPointer iterator(ubrk_open(
        UBRK_CHARACTER, "", text.utf16(), static_cast<std::int32_t>(text.size()), &status));
    // ICU fails here only if its data is missing, and QtCore does not start without that data.
    Q_ASSERT(U_SUCCESS(status));
    return iterator;
}

} // namespace

std::vector<qsizetype> graphemeStarts(QStringView text)
{
    // ICU leaves copies of the text in freed memory. A secret of ASCII characters is divided
    // without ICU: each character is a grapheme cluster, except for a line feed after a carriage
    // return.
    if (std::ranges::all_of(text,
                            [](QChar c) { return c.unicode() < 0x80 && c != QLatin1Char('\r'); })) {
        std::vector<qsizetype> starts(static_cast<std::size_t>(text.size()));
        std::iota(starts.begin(), starts.end(), 0);
        return starts;
    }

    const auto iterator = graphemeClusters(text);
    std::vector<qsizetype> starts;
    for (std::int32_t start = 0; start < text.size(); start = ubrk_next(iterator.getAlias()))
        starts.push_back(start);
    return starts;
}

qsizetype graphemeCount(QStringView text)
{
    return std::ssize(graphemeStarts(text));
}

QString firstGraphemes(const QString& text, qsizetype count)
{
    const auto iterator = graphemeClusters(text);
    std::int32_t end = 0;
    for (qsizetype i = 0; i < count && end < text.size(); ++i)
        end = ubrk_next(iterator.getAlias());
    return text.left(end);
}

bool canonicallyEquivalent(const QString& left, const QString& right)
{
    return left.normalized(QString::NormalizationForm_D)
           == right.normalized(QString::NormalizationForm_D);
}

} // namespace UnicodeText
