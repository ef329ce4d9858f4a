// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Clipboard.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Copies the selection of `editor`, a read-only `TextEdit`, as plain text that is marked as a
/// secret. Qt's own copy function also copies styled text, and sets no mark.
class SecretSelection : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* editor MEMBER m_editor WRITE setEditor REQUIRED FINAL)

public:
    using QObject::QObject;

    /// Called once. `editor` outlives this object.
    void setEditor(QQuickItem* editor)
    {
        m_editor = editor;
        m_editor->installEventFilter(this);
    }

    /// Copies the selected text, if any.
    Q_INVOKABLE void copy() const
    {
        const QString text = m_editor->property("selectedText").toString();
        if (!text.isEmpty())
            Platform::Clipboard::setSecret(text);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            // A TextEdit accepts shortcuts that a read-only text does not use. The window does not
            // receive accepted shortcuts.
            event->ignore();
            return true;
        case QEvent::KeyPress:
            // NOLINTNEXTLINE(*-static-cast-downcast): the type of the event determines its class
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
    QQuickItem* m_editor = nullptr;
};
