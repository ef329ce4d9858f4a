// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QFocusEvent>
#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Tells whether a key gave `item` the keyboard focus, for items that are not controls. Controls
/// have the property `visualFocus`.
class FocusOrigin : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* item MEMBER m_item WRITE setItem REQUIRED FINAL)
    Q_PROPERTY(bool isKey MEMBER m_isKey NOTIFY changed FINAL)

public:
    using QObject::QObject;

    /// Called once. `item` outlives this object.
    void setItem(QQuickItem* item)
    {
        m_item = item;
        m_item->installEventFilter(this);
    }

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn) {
            // NOLINTNEXTLINE(*-static-cast-downcast): the type of the event determines its class
            switch (static_cast<QFocusEvent*>(event)->reason()) {
            case Qt::ActiveWindowFocusReason:
            case Qt::PopupFocusReason:
                // The item had the focus before, for the same reason as now.
                break;
            case Qt::TabFocusReason:
            case Qt::BacktabFocusReason:
            case Qt::ShortcutFocusReason:
                set(true);
                break;
            default:
                set(false);
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void set(bool isKey)
    {
        m_isKey = isKey;
        Q_EMIT changed();
    }

    QQuickItem* m_item = nullptr;
    bool m_isKey = false;
};
