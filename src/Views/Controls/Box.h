// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// A rectangle with rounded corners whose edges and border lie on device pixels at every display
/// scale. At a scale of 1.25, the software renderer draws the sides of a `Rectangle`'s border one
/// or two pixels wide, and gaps between the sides and the corners.
class Box : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)
    Q_PROPERTY(QColor borderColor MEMBER m_borderColor NOTIFY changed FINAL)
    /// In logical pixels, like `inset` and `radius`; rounded to device pixels. Without effect while
    /// `borderColor` is transparent.
    Q_PROPERTY(qreal borderWidth MEMBER m_borderWidth NOTIFY changed FINAL)
    /// The distance between the edges of the item and the drawing; negative if the drawing is
    /// larger.
    Q_PROPERTY(qreal inset MEMBER m_inset NOTIFY changed FINAL)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed FINAL)

public:
    explicit Box(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;

private:
    QColor m_color = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    qreal m_borderWidth = 1;
    qreal m_inset = 0;
    qreal m_radius = 0;
};
