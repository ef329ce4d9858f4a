// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "App/ResizeBorder.h"

#include <QQuickWindow>

namespace {

constexpr double breadth = 5;
constexpr double cornerLength = 10;

Qt::Edges edgesWithin(double distance, const QPointF& point, const QSizeF& size)
{
    Qt::Edges edges;
    edges.setFlag(Qt::TopEdge, point.y() < distance);
    edges.setFlag(Qt::BottomEdge, point.y() >= size.height() - distance);
    edges.setFlag(Qt::LeftEdge, point.x() < distance);
    edges.setFlag(Qt::RightEdge, point.x() >= size.width() - distance);
    return edges;
}

bool isCorner(Qt::Edges edges)
{
    return (edges & (Qt::TopEdge | Qt::BottomEdge)) && (edges & (Qt::LeftEdge | Qt::RightEdge));
}

Qt::CursorShape cursorAt(Qt::Edges edges)
{
    if (isCorner(edges)) {
        return edges.testFlag(Qt::TopEdge) == edges.testFlag(Qt::LeftEdge) ? Qt::SizeFDiagCursor
                                                                           : Qt::SizeBDiagCursor;
    }
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace

ResizeBorder::ResizeBorder(QQuickItem* parent)
    : QQuickItem(parent)
{
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

bool ResizeBorder::contains(const QPointF& point) const
{
    return boundingRect().contains(point) && edgesAt(point);
}

void ResizeBorder::hoverMoveEvent(QHoverEvent* event)
{
    setCursor(cursorAt(edgesAt(event->position())));
}

void ResizeBorder::mousePressEvent(QMouseEvent* event)
{
    window()->startSystemResize(edgesAt(event->position()));
    // The window manager grabs the pointer and may not report the release of the button.
    ungrabMouse();
}

Qt::Edges ResizeBorder::edgesAt(const QPointF& point) const
{
    const Qt::Edges corner = edgesWithin(cornerLength, point, size());
    return isCorner(corner) ? corner : edgesWithin(breadth, point, size());
}
