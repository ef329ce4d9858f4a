// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorSettings.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// Tells a change of the settings from an assignment that leaves them equal. Bind `settings` to the
/// record that is to be watched.
class GeneratorSettingsObserver : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        GeneratorSettings settings READ settings WRITE setSettings NOTIFY changed REQUIRED FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] GeneratorSettings settings() const;
    void setSettings(const GeneratorSettings& settings);

Q_SIGNALS:
    /// The record differs from the one before in at least one field. Not emitted for the first.
    void changed();

private:
    std::optional<GeneratorSettings> m_settings;
};
