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
    /// The appearance that belongs to the running application. The first call starts to read the
    /// settings and returns before they are known.
    [[nodiscard]] static SystemAppearance& instance();

    /// Whether the user prefers a dark colour scheme; absent if the system reports no preference.
    [[nodiscard]] std::optional<bool> isDark() const { return m_isDark; }
    /// Whether the user prefers reduced motion.
    [[nodiscard]] bool isMotionReduced() const { return m_isMotionReduced; }
    /// Whether the first read of the settings has ended, with or without success.
    [[nodiscard]] bool isSettled() const { return m_isSettled; }

Q_SIGNALS:
    /// `isDark` or `isMotionReduced` has changed.
    void changed();
    /// `isSettled` has become true. Emitted once, at most 5 seconds after the first call of
    /// `instance`; not emitted if `isSettled` was true after that call.
    void settled();

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

    void settle()
    {
        m_isSettled = true;
        Q_EMIT settled();
    }

private:
    std::optional<bool> m_isDark;
    bool m_isMotionReduced = false;
    bool m_isSettled = false;
};

} // namespace Platform
