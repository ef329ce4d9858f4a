// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// The edges and corners by which a window without a frame is resized, along its own edges and
/// corners. What lies within them it leaves to other items.
class ResizeBorder : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ResizeBorder(QQuickItem* parent = nullptr);

    [[nodiscard]] bool contains(const QPointF& point) const override;

protected:
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] Qt::Edges edgesAt(const QPointF& point) const;
};
