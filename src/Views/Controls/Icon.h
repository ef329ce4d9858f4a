// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>
#include <QSvgRenderer>
#include <QtQml/qqmlregistration.h>

/// One of the program's icons, sharp at any scale of the display. Symbols are drawn in `color`.
class Icon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged REQUIRED FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    /// The name of a file in `icons`, without its ending. Nothing is drawn while the name is empty.
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);

    [[nodiscard]] const QColor& color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void nameChanged();
    void colorChanged();

private:
    void load();

    QString m_name;
    QColor m_color;
    QSvgRenderer m_drawing;
};
