// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QQuickPaintedItem>
#include <QSvgRenderer>
#include <QtQml/qqmlregistration.h>

/// The application's icon, sharp at any size and scale of the display.
class ApplicationIcon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ApplicationIcon(QQuickItem* parent = nullptr);

    /// The icon in a square of `size` pixels.
    [[nodiscard]] static QPixmap pixmap(int size);

    void paint(QPainter* painter) override;

private:
    QSvgRenderer m_drawing;
};
