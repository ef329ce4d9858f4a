// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Selects and copies text of `editor`, a read-only `TextEdit`, by the keyboard. The copy is plain
/// text that is marked as a secret. Qt's own functions also copy styled text, set no mark, and put
/// every selection into the primary selection of X11 and Wayland.
class SecretSelection : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* editor MEMBER m_editor WRITE setEditor REQUIRED FINAL)

public:
    using QObject::QObject;

    /// Called once. `editor` outlives this object.
    void setEditor(QQuickItem* editor);

    /// Copies the selected text, if any.
    Q_INVOKABLE void copy() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Whether `event` is a key of the editor, which has then had its effect.
    [[nodiscard]] bool handleKey(const QKeyEvent& event) const;

    QQuickItem* m_editor = nullptr;
};
