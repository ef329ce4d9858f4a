// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/Controls/Icon.h"

#include <QByteArray>
#include <QFile>
#include <QPainter>

void Icon::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    load();
    Q_EMIT nameChanged();
}

void Icon::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    load();
    Q_EMIT colorChanged();
}

void Icon::load()
{
    update();
    if (m_name.isEmpty() || !m_color.isValid())
        return;
    QFile file(QStringLiteral(":/qt/qml/Morvane/Views/Controls/icons/%1.svg").arg(m_name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is no icon named %s", qPrintable(m_name));
    m_drawing.load(file.readAll().replace("currentColor", m_color.name().toLatin1()));
}

void Icon::paint(QPainter* painter)
{
    if (m_name.isEmpty())
        return;
    painter->setOpacity(static_cast<qreal>(m_color.alphaF()));
    m_drawing.render(painter, boundingRect());
}
