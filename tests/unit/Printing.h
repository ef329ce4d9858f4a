// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Prints the program's types in failed expectations. Every test includes this header, because all
// tests of an executable need the same definitions.

#include "Model/GeneratorError.h"
#include "Model/GeneratorSettings.h"

#include <QString>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

// NOLINTBEGIN(readability-identifier-naming): the name is GoogleTest's.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const GeneratorError& error, std::ostream* out)
{
    *out << error.what();
    if (const auto length = error.minimumLength())
        *out << '(' << *length << ')';
    if (const auto status = error.randomStatus())
        *out << '(' << *status << ')';
}

inline void PrintTo(const GeneratorSettings& settings, std::ostream* out)
{
    *out << rawValue(settings.mode).toStdString() << ", length " << settings.length << ", groups "
         << (settings.lowercase ? "a" : "") << (settings.uppercase ? "A" : "")
         << (settings.numbers ? "0" : "") << (settings.symbols ? "!" : "")
         << (settings.avoidAmbiguous ? ", no look-alikes" : "")
         << (settings.requireEveryGroup ? ", every group" : "") << ", words " << settings.wordCount
         << ", separator ";
    PrintTo(settings.separator, out);
    *out << (settings.capitalizeWords ? ", capitals" : "")
         << (settings.appendNumber ? ", number" : "");
}

/// Prints a row of a table test as its name. GoogleTest finds this template only for types of a
/// namespace with `using ::PrintTo;`.
template<typename Row>
    requires requires(const Row& row) { row.name; }
void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

// NOLINTEND(readability-identifier-naming)

/// Names the instance of a table test after its row's `name`.
inline constexpr auto rowName
    = [](const auto& instance) { return std::string(instance.param.name); };
