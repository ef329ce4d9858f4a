// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <optional>

namespace Platform {

/// The user's settings for the look of all programs. Used only on the main thread.
class SystemAppearance : public QObject
{
    Q_OBJECT

public:
    /// Starts to read the settings, if the system needs time for this. Called at most once, before
    /// the program starts a thread and before `instance`. `restrictReader` is called in the process
    /// that reads, if this is another process.
    static void startReading(void (*restrictReader)());

    /// The appearance that belongs to the running application. Without `startReading`, the settings
    /// keep their defaults until they change.
    [[nodiscard]] static SystemAppearance& instance();

    /// Whether the user prefers a dark colour scheme; absent if the system reports no preference.
    [[nodiscard]] std::optional<bool> isDark() const { return m_isDark; }
    /// Whether the user prefers reduced motion.
    [[nodiscard]] bool isMotionReduced() const { return m_isMotionReduced; }

Q_SIGNALS:
    /// `isDark` or `isMotionReduced` has changed.
    void changed();

protected:
    using QObject::QObject;

    void update(std::optional<bool> isDark, bool isMotionReduced)
    {
        if (isDark == m_isDark && isMotionReduced == m_isMotionReduced)
            return;
        m_isDark = isDark;
        m_isMotionReduced = isMotionReduced;
        Q_EMIT changed();
    }

private:
    std::optional<bool> m_isDark;
    bool m_isMotionReduced = false;
};

} // namespace Platform
