// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace Platform {

PortalSettings::PortalSettings(const QStringList& groups, QObject* parent)
    : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;

    qDBusRegisterMetaType<Groups>();
    // The slot's parameters are looked up by name, and Qt does not know this one by itself.
    qRegisterMetaType<QDBusVariant>();

    const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(takeChange(QString, QString, QDBusVariant)));

    QDBusMessage question
        = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    question << groups;
    m_isAsking = true;
    constexpr int patience = 5000;
    const auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question, patience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](auto* finished) {
        finished->deleteLater();
        const QDBusPendingReply<Groups> reply = *finished;
        if (!reply.isError())
            takeAnswer(reply.value());
        m_isAsking = false;
        Q_EMIT asked();
    });
}

QVariant PortalSettings::value(QLatin1String group, QLatin1String key) const
{
    return m_groups.value(group).value(key);
}

void PortalSettings::takeChange(const QString& group, const QString& key, const QDBusVariant& value)
{
    m_groups[group][key] = value.variant();
    Q_EMIT changed();
}

void PortalSettings::takeAnswer(const Groups& answer)
{
    // A change that was told meanwhile is newer than the answer.
    const Groups changes = std::exchange(m_groups, answer);
    for (auto group = changes.begin(); group != changes.end(); ++group)
        m_groups[group.key()].insert(group.value());
    Q_EMIT changed();
}

} // namespace Platform
