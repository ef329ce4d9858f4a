// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/Controls/Box.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPen>
#include <QPointF>
#include <QQuickWindow>
#include <QRect>
#include <QRectF>
#include <QRegion>
#include <QSGRenderNode>
#include <QSGRendererInterface>
#include <QSizeF>
#include <QTransform>

#include <algorithm>
#include <memory>

namespace {

struct Drawing
{
    QColor color;
    QColor borderColor;
    qreal borderWidth = 0;
    qreal inset = 0;
    qreal radius = 0;
    QSizeF size;
    QQuickWindow* window = nullptr;
};

/// `region`, extended to the last device pixels of the window where the region reaches the right or
/// bottom edge. Qt 6.4 and 6.8 round the painted area down to whole logical pixels: at a scale of
/// 1.25, the last of 781 rows keeps what an earlier frame left in the memory.
QRegion toLastPixels(QRegion region, const QPaintDevice& device)
{
    const auto painted
        = [&device](int pixels) { return static_cast<int>(pixels / device.devicePixelRatio()); };
    const QRect area(0, 0, painted(device.width()), painted(device.height()));
    region += region.intersected(QRect(area.right(), 0, 1, area.height())).translated(1, 0);
    region += region.intersected(QRect(0, area.bottom(), area.width() + 1, 1)).translated(0, 1);
    return region;
}

/// Draws with the painter of the software renderer, the only renderer of the program.
class BoxNode final : public QSGRenderNode
{
public:
    void setDrawing(const Drawing& drawing)
    {
        m_drawing = drawing;
        markDirty(DirtyGeometry | DirtyMaterial);
    }

    void render(const RenderState* state) override;
    [[nodiscard]] RenderingFlags flags() const override { return BoundedRectRendering; }

    /// One pixel larger than the drawing, because rounding to device pixels moves the edges.
    [[nodiscard]] QRectF rect() const override
    {
        const qreal margin = 1 - m_drawing.inset;
        return QRectF(QPointF(), m_drawing.size).adjusted(-margin, -margin, margin, margin);
    }

private:
    Drawing m_drawing;
};

void BoxNode::render(const RenderState* state)
{
    const auto& [color, borderColor, borderWidth, inset, radius, size, window] = m_drawing;
    auto* const painter = static_cast<QPainter*>(
        window->rendererInterface()->getResource(window, QSGRendererInterface::PainterResource));
    const qreal scale = painter->device()->devicePixelRatio();
    painter->setClipRegion(toLastPixels(*state->clipRegion(), *painter->device()));
    painter->setTransform(QTransform::fromScale(1 / scale, 1 / scale));
    painter->setOpacity(inheritedOpacity());
    painter->setRenderHint(QPainter::Antialiasing);

    // The size is rounded independently of the position, so that boxes of one size look the same.
    const auto toPixels = [scale](qreal length) { return qRound(length * scale); };
    const QPointF position = matrix()->map(QPointF());
    const int margin = toPixels(inset);
    QRectF bounds(toPixels(position.x()), toPixels(position.y()), toPixels(size.width()),
                  toPixels(size.height()));
    bounds.adjust(margin, margin, -margin, -margin);
    qreal pixelRadius = std::min({radius * scale, bounds.width() / 2, bounds.height() / 2});

    painter->setPen(Qt::NoPen);
    if (borderColor.alpha() > 0) {
        // The painter centres the line of the border on the edges of the rectangle.
        const qreal line = std::max(1, toPixels(borderWidth));
        painter->setPen(QPen(borderColor, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        bounds.adjust(line / 2, line / 2, -line / 2, -line / 2);
        pixelRadius = std::max(0.0, pixelRadius - line / 2);
    }
    painter->setBrush(color);
    painter->drawRoundedRect(bounds, pixelRadius, pixelRadius);
}

} // namespace

Box::Box(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &Box::changed, this, &QQuickItem::update);
}

QSGNode* Box::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* /*data*/)
{
    // NOLINTNEXTLINE(*-static-cast-downcast): only this function creates nodes of the item
    auto* node = static_cast<BoxNode*>(oldNode);
    if (!node)
        node = std::make_unique<BoxNode>().release();
    node->setDrawing({m_color, m_borderColor, m_borderWidth, m_inset, m_radius, size(), window()});
    return node;
}
