// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "ViewModel/PerceivedText.h"

#include "Model/UnicodeText.h"

int PerceivedText::count(const QString& text)
{
    return static_cast<int>(UnicodeText::graphemeCount(text));
}

QString PerceivedText::first(const QString& text, int count)
{
    return UnicodeText::firstGraphemes(text, count);
}
