// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/PortalSettings.h"
#include "Platform/ProcessMemory.h"
#include "Platform/SystemAppearance.h"

#include <utility>

namespace Platform {

namespace {

constexpr QLatin1String appearance("org.freedesktop.appearance");
// Portals that are older than the agreed key for reduced motion hand out their desktop's own.
constexpr QLatin1String gnome("org.gnome.desktop.interface");
constexpr QLatin1String plasma("org.kde.kdeglobals.KDE");

std::optional<bool> darkPreference(const PortalSettings& settings)
{
    switch (settings.value(appearance, QLatin1String("color-scheme")).toUInt()) {
    case 1:
        return true;
    case 2:
        return false;
    default:
        return std::nullopt;
    }
}

bool wantsReducedMotion(const PortalSettings& settings)
{
    const QVariant animations = settings.value(gnome, QLatin1String("enable-animations"));
    const QVariant durations = settings.value(plasma, QLatin1String("AnimationDurationFactor"));
    return settings.value(appearance, QLatin1String("reduced-motion")).toUInt() == 1
           || (animations.isValid() && !animations.toBool())
           || (durations.isValid() && durations.toDouble() == 0);
}

} // namespace

void SystemAppearance::observe(QObject* observer,
                               std::function<void(const SystemAppearance&)> changed)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its parent owns it
    const auto* const settings = new PortalSettings({appearance, gnome, plasma}, observer);
    QObject::connect(settings, &PortalSettings::changed, observer,
                     [settings, changed = std::move(changed), told = SystemAppearance()]() mutable {
                         const SystemAppearance current{.dark = darkPreference(*settings),
                                                        .reducedMotion
                                                        = wantsReducedMotion(*settings)};
                         if (current != std::exchange(told, current))
                             changed(current);
                     });

    // Before its first answer the portal looks at who asks, and gives none to a hidden process.
    // From then on it knows.
    if (settings->isAsking())
        QObject::connect(settings, &PortalSettings::asked, observer, ProcessMemory::hide);
    else
        ProcessMemory::hide();
}

} // namespace Platform
