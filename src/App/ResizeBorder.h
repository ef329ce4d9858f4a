// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// The strips along the edges of a window without a frame, by which the pointer resizes the window.
/// The strips lie within the window; events elsewhere go to the items below.
class ResizeBorder : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ResizeBorder(QQuickItem* parent = nullptr);

    [[nodiscard]] bool contains(const QPointF& point) const override;

protected:
    void hoverEnterEvent(QHoverEvent* event) override { hoverMoveEvent(event); }
    void hoverMoveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] Qt::Edges edgesAt(const QPointF& point) const;
};
