// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>
#include <optional>

namespace Platform {

/// What the user asked of the look of all programs.
struct SystemAppearance
{
    /// Absent where the system does not say.
    std::optional<bool> dark;
    /// No movement that serves decoration only.
    bool reducedMotion = false;

    friend bool operator==(const SystemAppearance&, const SystemAppearance&) = default;

    /// Calls `changed` on the user-interface thread with every answer of the system that differs
    /// from the one before (at first: from a default-constructed one), for as long as `observer`
    /// lives. Returns at once; where the system never answers, `changed` is never called. Hides the
    /// process's memory as soon as the system has no more need to look at who asks.
    static void observe(QObject* observer, std::function<void(const SystemAppearance&)> changed);
};

} // namespace Platform
