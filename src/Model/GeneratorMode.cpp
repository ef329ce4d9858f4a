// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorMode.h"

#include <QtGlobal>

#include <algorithm>

QString rawValue(GeneratorMode mode)
{
    switch (mode) {
    case GeneratorMode::password:
        return QStringLiteral("Passwort");
    case GeneratorMode::passphrase:
        return QStringLiteral("Passphrase");
    }
    Q_UNREACHABLE();
}

std::optional<GeneratorMode> generatorMode(QStringView text)
{
    const auto* const found = std::ranges::find_if(
        allGeneratorModes, [text](GeneratorMode mode) { return rawValue(mode) == text; });
    if (found == allGeneratorModes.end())
        return std::nullopt;
    return *found;
}
