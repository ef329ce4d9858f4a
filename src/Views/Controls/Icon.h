// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>
#include <QSvgRenderer>
#include <QtQml/qqmlregistration.h>

/// An SVG icon of the program, sharp at any display scale. `color` replaces `currentColor` in the
/// file.
class Icon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    /// The name of a file in `icons`, without the extension. Nothing is drawn while `name` is
    /// empty.
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed REQUIRED FINAL)

public:
    explicit Icon(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    void load();

    QString m_name;
    QColor m_color;
    QSvgRenderer m_drawing;
};
