// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <QObject>

/// An event filter for the application that lets a held key press a button or a shortcut only once.
class HeldKeys : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            if (!isRepetition(event))
                return false;
            event->accept(); // No shortcut matches an accepted event.
            return true;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return isRepetition(event) && pressesButtons(event);
        default:
            return QObject::eventFilter(watched, event);
        }
    }

private:
    static const QKeyEvent& keyEvent(const QEvent* event)
    {
        // NOLINTNEXTLINE(*-static-cast-downcast): the callers check the type of the event
        return *static_cast<const QKeyEvent*>(event);
    }

    static bool pressesButtons(const QEvent* event)
    {
        const int key = keyEvent(event).key();
        return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    }

    /// On X11, Qt 6.4 marks only some repetitions. The X server repeats a key by a release and a
    /// press at the same time, without an event of another key between them.
    bool isRepetition(const QEvent* event)
    {
        const QKeyEvent& key = keyEvent(event);
        if (event->type() == QEvent::KeyRelease) {
            m_releasedKey = key.key();
            m_releaseTime = key.timestamp();
        } else if (key.key() != m_releasedKey) {
            m_releasedKey = 0;
        }
        return key.isAutoRepeat()
               || (event->type() != QEvent::KeyRelease && m_releasedKey != 0 && m_releaseTime != 0
                   && key.timestamp() == m_releaseTime);
    }

    int m_releasedKey = 0;
    quint64 m_releaseTime = 0;
};
