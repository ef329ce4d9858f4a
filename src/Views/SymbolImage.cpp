// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/SymbolImage.h"

#include <QByteArray>
#include <QFile>
#include <QPainter>

void SymbolImage::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    load();
    Q_EMIT nameChanged();
}

void SymbolImage::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    load();
    Q_EMIT colorChanged();
}

void SymbolImage::load()
{
    update();
    if (m_name.isEmpty() || !m_color.isValid())
        return;
    QFile file(QStringLiteral(":/qt/qml/Morvane/Views/symbols/%1.svg").arg(m_name));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("There is no symbol named %s", qPrintable(m_name));
        return;
    }
    m_drawing.load(file.readAll().replace("currentColor", m_color.name().toLatin1()));
}

void SymbolImage::paint(QPainter* painter)
{
    if (m_name.isEmpty())
        return;
    painter->setOpacity(static_cast<qreal>(m_color.alphaF()));
    m_drawing.render(painter, boundingRect());
}
