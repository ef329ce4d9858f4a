// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/Controls/Icon.h"

#include <QByteArray>
#include <QFile>
#include <QPainter>

Icon::Icon(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &Icon::changed, this, &Icon::load);
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
