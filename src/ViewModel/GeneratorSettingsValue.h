// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorSettings.h"

#include <QtQml/qqml.h>

/// Registers `GeneratorSettings` as the QML value type `generatorSettings`. MorvaneModel does
/// not link QML and cannot register the type.
struct GeneratorSettingsValue
{
    Q_GADGET
    QML_FOREIGN(GeneratorSettings)
    QML_VALUE_TYPE(generatorSettings)
};
