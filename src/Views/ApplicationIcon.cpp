// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/ApplicationIcon.h"

#include <QPainter>

namespace {

// A program without its icon was not built as it should be.
void load(QSvgRenderer& drawing)
{
    const QString file = QStringLiteral(":/qt/qml/Morvane/Views/de.morvane.Morvane.svg");
    if (!drawing.load(file))
        qFatal("There is no application icon");
}

} // namespace

ApplicationIcon::ApplicationIcon(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    load(m_drawing);
}

QPixmap ApplicationIcon::pixmap(int size)
{
    QSvgRenderer drawing;
    load(drawing);
    QPixmap result(size, size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    drawing.render(&painter);
    return result;
}

void ApplicationIcon::paint(QPainter* painter)
{
    m_drawing.render(painter, boundingRect());
}
