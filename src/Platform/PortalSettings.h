// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

namespace Platform {

/// The settings that the desktop portal hands out over D-Bus: asked for once, then listened to.
/// Without a bus or a portal there are none, and none come.
class PortalSettings final : public QObject
{
    Q_OBJECT

public:
    using Groups = QMap<QString, QVariantMap>;

    /// Asks for all settings of `groups`, such as "org.freedesktop.appearance".
    PortalSettings(const QStringList& groups, QObject* parent);

    /// Whether there is anybody to wait for.
    [[nodiscard]] bool isAsking() const { return m_isAsking; }
    /// Invalid as long as it is not known.
    [[nodiscard]] QVariant value(QLatin1String group, QLatin1String key) const;

Q_SIGNALS:
    void changed();
    /// Once, after at most five seconds: the portal has answered, or will not.
    void asked();

private:
    Q_SLOT void takeChange(const QString& group, const QString& key, const QDBusVariant& value);
    void takeAnswer(const Groups& answer);

    bool m_isAsking = false;
    Groups m_groups;
};

} // namespace Platform
