// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/SecretSelection.h"

#include "Platform/Clipboard.h"

#include <QKeySequence>
#include <QQuickTextDocument>
#include <QTextCursor>

#include <array>

namespace {

/// A movement of the text cursor, and the keys that move it with and without the selection.
struct Movement
{
    QKeySequence::StandardKey move;
    QKeySequence::StandardKey select;
    QTextCursor::MoveOperation operation;
};

constexpr std::array movements{
    Movement{QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, QTextCursor::Right},
    Movement{QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar, QTextCursor::Left},
    Movement{QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, QTextCursor::NextWord},
    Movement{QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord,
             QTextCursor::PreviousWord},
    Movement{QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, QTextCursor::Down},
    Movement{QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, QTextCursor::Up},
    Movement{QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine,
             QTextCursor::StartOfLine},
    Movement{QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, QTextCursor::EndOfLine},
    Movement{QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument,
             QTextCursor::Start},
    Movement{QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument,
             QTextCursor::End},
};

} // namespace

void SecretSelection::setEditor(QQuickItem* editor)
{
    m_editor = editor;
    m_editor->installEventFilter(this);
}

void SecretSelection::copy() const
{
    const QString text = m_editor->property("selectedText").toString();
    if (!text.isEmpty())
        Platform::Clipboard::setSecret(text);
}

bool SecretSelection::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // A TextEdit accepts shortcuts that a read-only text does not use. The window does not
        // receive accepted shortcuts.
        event->ignore();
        return true;
    case QEvent::KeyPress:
        // NOLINTNEXTLINE(*-static-cast-downcast): the type of the event determines its class
        if (handleKey(*static_cast<QKeyEvent*>(event)))
            return true;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool SecretSelection::handleKey(const QKeyEvent& event) const
{
    if (event.matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        QMetaObject::invokeMethod(m_editor, "selectAll");
        return true;
    }
    for (const auto& [move, select, operation] : movements) {
        if (!event.matches(move) && !event.matches(select))
            continue;
        const auto* const document
            = m_editor->property("textDocument").value<QQuickTextDocument*>();
        QTextCursor cursor(document->textDocument());
        cursor.setPosition(m_editor->property("cursorPosition").toInt());
        cursor.movePosition(operation);
        if (event.matches(select))
            QMetaObject::invokeMethod(m_editor, "moveCursorSelection",
                                      Q_ARG(int, cursor.position()));
        else
            m_editor->setProperty("cursorPosition", cursor.position());
        return true;
    }
    return false;
}
