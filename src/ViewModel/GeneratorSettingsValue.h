// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorSettings.h"

#include <QtQml/qqml.h>

/// Makes `GeneratorSettings` the QML value type `generatorSettings`, from here because the model
/// does not know QML.
struct GeneratorSettingsValue
{
    Q_GADGET
    QML_FOREIGN(GeneratorSettings)
    QML_VALUE_TYPE(generatorSettings)
};
