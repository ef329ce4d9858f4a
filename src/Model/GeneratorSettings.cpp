// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorSettings.h"

#include "Model/UnicodeText.h"

bool operator==(const GeneratorSettings& left, const GeneratorSettings& right)
{
    return left.mode == right.mode && left.length == right.length
           && left.lowercase == right.lowercase && left.uppercase == right.uppercase
           && left.numbers == right.numbers && left.symbols == right.symbols
           && left.avoidAmbiguous == right.avoidAmbiguous
           && left.requireEveryGroup == right.requireEveryGroup && left.wordCount == right.wordCount
           && UnicodeText::canonicallyEquivalent(left.separator, right.separator)
           && left.capitalizeWords == right.capitalizeWords
           && left.appendNumber == right.appendNumber;
}
