// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

/// Measures of text as people read it. They come from ICU, because Qt 6.4's own text boundaries
/// miss some of the Unicode standard's cases.
namespace UnicodeText {

/// The number of user-perceived characters: the extended grapheme clusters of Unicode's annex 29.
[[nodiscard]] qsizetype graphemeCount(QStringView text);

/// The first `count` (0 or more) user-perceived characters; all of `text` if it has no more.
[[nodiscard]] QString firstGraphemes(const QString& text, qsizetype count);

/// Whether the texts are the same once composed and decomposed spellings count as one: canonical
/// equivalence of the Unicode standard.
[[nodiscard]] bool canonicallyEquivalent(QStringView left, QStringView right);

} // namespace UnicodeText
