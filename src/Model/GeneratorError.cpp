// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorError.h"

GeneratorError GeneratorError::lengthTooShort(std::int64_t minimumLength)
{
    return GeneratorError(LengthTooShort{minimumLength});
}

GeneratorError GeneratorError::randomFailure(std::int32_t status)
{
    return GeneratorError(RandomFailure{status});
}

GeneratorError GeneratorError::noCharacterSet()
{
    return GeneratorError(NoCharacterSet{});
}

QString GeneratorError::errorDescription() const
{
    if (const auto length = minimumLength()) {
        return QStringLiteral("Die Länge muss mindestens ") + QString::number(*length)
               + QStringLiteral(" betragen, damit jede Gruppe vorkommen kann.");
    }
    if (randomStatus()) {
        return QStringLiteral(
            "Der sichere Zufallsgenerator von macOS konnte nicht verwendet werden.");
    }
    return QStringLiteral("Bitte mindestens eine Zeichengruppe aktivieren.");
}

std::optional<std::int64_t> GeneratorError::minimumLength() const
{
    if (const auto* const tooShort = std::get_if<LengthTooShort>(&m_case))
        return tooShort->minimumLength;
    return std::nullopt;
}

std::optional<std::int32_t> GeneratorError::randomStatus() const
{
    if (const auto* const failure = std::get_if<RandomFailure>(&m_case))
        return failure->status;
    return std::nullopt;
}

const char* GeneratorError::what() const noexcept
{
    if (std::holds_alternative<LengthTooShort>(m_case))
        return "lengthTooShort";
    if (std::holds_alternative<RandomFailure>(m_case))
        return "randomFailure";
    return "noCharacterSet";
}
