// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/UnicodeText.h"

#include <unicode/ubrk.h>

#include <algorithm>

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

qsizetype graphemeCount(QStringView text)
{
    // ICU leaves copies of the text in freed memory. A secret of ASCII characters is counted
    // without ICU: each character is a grapheme cluster, except for a line feed after a carriage
    // return.
    if (std::ranges::all_of(text,
                            [](QChar c) { return c.unicode() < 0x80 && c != QLatin1Char('\r'); }))
        return text.size();

    const auto iterator = graphemeClusters(text);
    qsizetype count = 0;
    while (ubrk_next(iterator.getAlias()) != UBRK_DONE)
        ++count;
    return count;
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
