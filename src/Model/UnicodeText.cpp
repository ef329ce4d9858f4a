// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/UnicodeText.h"

#include <unicode/ubrk.h>
#include <unicode/unorm.h>
#include <unicode/utext.h>

#include <algorithm>
#include <memory>

namespace UnicodeText {
namespace {

struct BreakIteratorCloser
{
    void operator()(UBreakIterator* iterator) const { ubrk_close(iterator); }
};
using BreakIterator = std::unique_ptr<UBreakIterator, BreakIteratorCloser>;

std::int32_t icuLength(QStringView text)
{
    return static_cast<std::int32_t>(text.size());
}

BreakIterator graphemeClusters(QStringView text)
{
    UErrorCode status = U_ZERO_ERROR;
    BreakIterator iterator(ubrk_open(UBRK_CHARACTER, "", text.utf16(), icuLength(text), &status));
    // ICU fails here only if its data is missing, and QtCore does not start without that data.
    Q_ASSERT(U_SUCCESS(status));
    return iterator;
}

// Every ASCII character is a grapheme cluster, except for a line feed after a carriage return. The
// start of the program is faster without ICU, which loads its data at the first call.
bool isPlainAscii(QStringView text)
{
    return std::ranges::all_of(
        text, [](QChar c) { return c.unicode() < 0x80 && c != QLatin1Char('\r'); });
}

} // namespace

qsizetype graphemeCount(QStringView text)
{
    if (isPlainAscii(text))
        return text.size();

    const BreakIterator iterator = graphemeClusters(text);
    qsizetype count = 0;
    while (ubrk_next(iterator.get()) != UBRK_DONE)
        ++count;
    return count;
}

QString firstGraphemes(const QString& text, qsizetype count)
{
    if (isPlainAscii(text))
        return text.left(count);

    const BreakIterator iterator = graphemeClusters(text);
    std::int32_t end = 0;
    for (qsizetype i = 0; i < count; ++i) {
        const std::int32_t next = ubrk_next(iterator.get());
        if (next == UBRK_DONE)
            break;
        end = next;
    }
    return text.left(end);
}

bool canonicallyEquivalent(QStringView left, QStringView right)
{
    if (left == right)
        return true;
    if (isPlainAscii(left) && isPlainAscii(right))
        return false;

    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t order
        = unorm_compare(left.utf16(), icuLength(left), right.utf16(), icuLength(right), 0, &status);
    return U_SUCCESS(status) && order == 0;
}

} // namespace UnicodeText
