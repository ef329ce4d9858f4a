// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorError.h"

#include <array>
#include <cstddef>

GeneratorError GeneratorError::lengthTooShort(std::int64_t minimumLength)
{
    return GeneratorError(Kind::lengthTooShort, minimumLength);
}

GeneratorError GeneratorError::randomFailure(std::int32_t status)
{
    return GeneratorError(Kind::randomFailure, status);
}

GeneratorError GeneratorError::noCharacterSet()
{
    return GeneratorError(Kind::noCharacterSet);
}

QString GeneratorError::errorDescription() const
{
    switch (m_kind) {
    case Kind::lengthTooShort:
        return QStringLiteral(
                   "Die Länge muss mindestens %1 betragen, damit jede Gruppe vorkommen kann.")
            .arg(m_number);
    case Kind::randomFailure:
        return QStringLiteral(
            "Der sichere Zufallsgenerator von macOS konnte nicht verwendet werden.");
    case Kind::noCharacterSet:
        return QStringLiteral("Bitte mindestens eine Zeichengruppe aktivieren.");
    }
    Q_UNREACHABLE();
}

std::optional<std::int64_t> GeneratorError::minimumLength() const
{
    return m_kind == Kind::lengthTooShort ? std::optional(m_number) : std::nullopt;
}

std::optional<std::int32_t> GeneratorError::randomStatus() const
{
    if (m_kind == Kind::randomFailure)
        return static_cast<std::int32_t>(m_number);
    return std::nullopt;
}

const char* GeneratorError::what() const noexcept
{
    static constexpr std::array names{"lengthTooShort", "randomFailure", "noCharacterSet"};
    return names.at(static_cast<std::size_t>(m_kind));
}
