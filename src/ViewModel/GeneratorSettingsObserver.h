// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorSettings.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// Distinguishes a change of the settings from an assignment of equal settings. A view binds
/// `settings` to the observed property of the view model.
class GeneratorSettingsObserver : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        GeneratorSettings settings READ settings WRITE setSettings NOTIFY changed REQUIRED FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] GeneratorSettings settings() const
    {
        return m_settings.value_or(GeneratorSettings());
    }

    void setSettings(const GeneratorSettings& settings)
    {
        const bool differs = m_settings && !(*m_settings == settings);
        m_settings = settings;
        if (differs)
            Q_EMIT changed();
    }

Q_SIGNALS:
    /// An assigned record differs from the previous record. Not emitted for the first record.
    void changed();

private:
    std::optional<GeneratorSettings> m_settings;
};
