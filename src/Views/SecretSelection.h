// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Clipboard.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Makes of `editor`, a read-only `TextEdit`, one that shows a secret. What is selected is copied
/// as a secret: the editor would offer it as a styled document as well, and tell nobody to leave
/// it. And shortcuts go to the window: the editor would claim them all, those that it has no use
/// for too.
class SecretSelection : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* editor READ editor WRITE setEditor NOTIFY editorChanged REQUIRED FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem* editor() const { return m_editor; }

    void setEditor(QQuickItem* editor)
    {
        if (m_editor)
            m_editor->removeEventFilter(this);
        m_editor = editor;
        if (m_editor)
            m_editor->installEventFilter(this);
        Q_EMIT editorChanged();
    }

    /// Does nothing while nothing is selected.
    Q_INVOKABLE void copy() const
    {
        const QString text = m_editor ? m_editor->property("selectedText").toString() : QString();
        if (!text.isEmpty())
            Platform::Clipboard::setSecret(text);
    }

Q_SIGNALS:
    void editorChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            event->ignore();
            return true;
        case QEvent::KeyPress:
            // NOLINTNEXTLINE(*-static-cast-downcast): the event's type tells its class
            if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
                break;
            copy();
            return true;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QPointer<QQuickItem> m_editor;
};
