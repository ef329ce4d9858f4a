// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ApplicationObject.h"
#include "Platform/SystemAppearance.h"
#include "PortalSettings.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLatin1String>
#include <QMap>
#include <QVariantMap>

#include <utility>

namespace Platform {

namespace {

using Settings = QMap<QString, QVariantMap>;

constexpr QLatin1String appearance("org.freedesktop.appearance");
// Portals that are older than the common key "reduced-motion" offer the keys of their desktop.
constexpr QLatin1String gnome("org.gnome.desktop.interface");
constexpr QLatin1String plasma("org.kde.kdeglobals.KDE");

std::optional<bool> darkPreference(const Settings& settings)
{
    const uint scheme = settings[appearance][QLatin1String("color-scheme")].toUInt();
    return scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : std::nullopt;
}

bool prefersReducedMotion(const Settings& settings)
{
    const QVariant animations = settings[gnome][QLatin1String("enable-animations")];
    const QVariant durations = settings[plasma][QLatin1String("AnimationDurationFactor")];
    return settings[appearance][QLatin1String("reduced-motion")].toUInt() == 1
           || (animations.isValid() && !animations.toBool())
           || (durations.isValid() && durations.toDouble() == 0);
}

/// The settings of the desktop portal, which are read once over D-Bus and then followed. Without a
/// session bus or a portal, the settings keep their defaults.
class PortalAppearance final : public SystemAppearance
{
public:
    explicit PortalAppearance(QObject* parent)
        : SystemAppearance(parent)
        , m_portal(QStringLiteral("org.freedesktop.portal.Desktop"),
                   QStringLiteral("/org/freedesktop/portal/desktop"), QDBusConnection::sessionBus())
    {
        if (!m_portal.connection().isConnected()) {
            settle();
            return;
        }
        qDBusRegisterMetaType<Settings>();
        // QtDBus drops a signal if a parameter's type is not registered by name, and Qt 6.4 does
        // not register QDBusVariant.
        qRegisterMetaType<QDBusVariant>();
        connect(&m_portal, &PortalSettings::SettingChanged, this, &PortalAppearance::takeChange);
        constexpr int timeout = 5000;
        m_portal.setTimeout(timeout);
        const auto* const reply
            = new QDBusPendingCallWatcher(m_portal.ReadAll({appearance, gnome, plasma}), this);
        connect(reply, &QDBusPendingCallWatcher::finished, this, &PortalAppearance::takeReply);
    }

private:
    void takeChange(const QString& group, const QString& key, const QDBusVariant& value)
    {
        m_settings[group][key] = value.variant();
        update(darkPreference(m_settings), prefersReducedMotion(m_settings));
    }

    void takeReply(QDBusPendingCallWatcher* call)
    {
        const QDBusPendingReply<Settings> reply = *call;
        call->deleteLater();
        if (!reply.isError()) {
            // A change that arrived before the reply is newer than the reply.
            const Settings changes = std::exchange(m_settings, reply.value());
            for (auto group = changes.begin(); group != changes.end(); ++group)
                m_settings[group.key()].insert(group.value());
            update(darkPreference(m_settings), prefersReducedMotion(m_settings));
        }
        settle();
    }

    PortalSettings m_portal;
    Settings m_settings;
};

} // namespace

SystemAppearance& SystemAppearance::instance()
{
    return applicationObject<PortalAppearance>();
}

} // namespace Platform
