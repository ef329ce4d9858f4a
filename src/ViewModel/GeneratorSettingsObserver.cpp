// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "ViewModel/GeneratorSettingsObserver.h"

GeneratorSettings GeneratorSettingsObserver::settings() const
{
    return m_settings.value_or(GeneratorSettings());
}

void GeneratorSettingsObserver::setSettings(const GeneratorSettings& settings)
{
    const bool differs = m_settings && !(*m_settings == settings);
    m_settings = settings;
    if (differs)
        Q_EMIT changed();
}
