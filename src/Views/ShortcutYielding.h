// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Leaves every shortcut to the window while `target` has the keyboard. A `TextEdit` that is
/// read-only would claim them all, those that it has no use for too.
class ShortcutYielding : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* target READ target WRITE setTarget NOTIFY targetChanged REQUIRED FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem* target() const { return m_target; }

    void setTarget(QQuickItem* target)
    {
        if (m_target)
            m_target->removeEventFilter(this);
        m_target = target;
        if (m_target)
            m_target->installEventFilter(this);
        Q_EMIT targetChanged();
    }

Q_SIGNALS:
    void targetChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride)
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }

private:
    QPointer<QQuickItem> m_target;
};
