// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>
#include <QSvgRenderer>
#include <QtQml/qqmlregistration.h>

/// One of the program's own symbols, drawn in one colour and sharp at any scale of the display.
class SymbolImage : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged REQUIRED FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    /// The symbol's file name without its ending. Empty: nothing is drawn.
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);

    [[nodiscard]] const QColor& color() const { return m_color; }
    void setColor(const QColor& color);

    /// Whether there is a drawing to show.
    [[nodiscard]] bool isValid() const { return m_drawing.isValid(); }

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
