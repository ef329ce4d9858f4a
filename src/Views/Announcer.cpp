// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/Announcer.h"

#include "Platform/MessageCache.h"

#include <QAccessible>
#include <QQuickWindow>
#include <QTimerEvent>

#include <utility>

namespace {

/// In milliseconds. A slider generates many secrets in a row, of which the last one is announced.
constexpr int delay = 300;

/// In milliseconds. Meanwhile, the screen reader asks for the name of the notification.
[[maybe_unused]] constexpr int notificationTime = 5000;

} // namespace

Announcer::Announcer(QQuickItem* parent)
    : QQuickItem(parent)
{
    setVisible(false);
}

void Announcer::setModel(GeneratorViewModel* model)
{
    m_model = model;
    connect(model, &GeneratorViewModel::generatedChanged, this,
            [this] { announce(m_model->generated()); });
    connect(model, &GeneratorViewModel::copiedChanged, this, [this] {
        if (m_model->copied())
            announce(QStringLiteral("Kopiert"));
    });
}

void Announcer::announce(const QString& message)
{
    if (!QAccessible::isActive())
        return;
    m_pending = message;
    m_delay.start(delay, this);
}

void Announcer::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_delay.timerId()) {
        m_delay.stop();
        Platform::MessageCache::wipe(); // Qt's messages about the former secrets are sent.
        show(std::exchange(m_pending, {}));
    } else if (event->timerId() == m_end.timerId()) {
        m_end.stop();
        show({});
    } else {
        QQuickItem::timerEvent(event);
    }
}

void Announcer::show(const QString& message)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(window(), message);
    QAccessible::updateAccessibility(&announcement);
#else
    setVisible(false);
    m_message = message;
    Q_EMIT messageChanged();
    if (message.isEmpty())
        return;
    setVisible(true);
    m_end.start(notificationTime, this);
#endif
}
