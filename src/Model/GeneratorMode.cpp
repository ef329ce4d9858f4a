// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorMode.h"

#include <cstddef>

namespace {

constexpr std::array<QStringView, allGeneratorModes.size()> labels{u"Passwort", u"Passphrase"};

} // namespace

QString rawValue(GeneratorMode mode)
{
    return labels.at(static_cast<std::size_t>(mode)).toString();
}

std::optional<GeneratorMode> generatorMode(QStringView text)
{
    for (const GeneratorMode mode : allGeneratorModes) {
        if (rawValue(mode) == text)
            return mode;
    }
    return std::nullopt;
}
