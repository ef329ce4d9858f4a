// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>
#include <QObject>
#include <QPointer>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

/// How `window` stands on the screen. Named here because for the first name of an enumerator that
/// a script reads, Qt looks up those of the whole type.
class WindowState : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QWindow* window READ window WRITE setWindow NOTIFY changed REQUIRED FINAL)
    /// Whether it fills the screen: maximised, or full screen.
    Q_PROPERTY(bool filling READ filling NOTIFY changed FINAL)
    /// Whether it has edges of its own: neither filling nor minimised nor hidden.
    Q_PROPERTY(bool windowed READ windowed NOTIFY changed FINAL)
    /// Whether it receives the keys. Since Qt 6.8, a shortcut of a window also matches while one of
    /// its transient windows receives them, and the other way round; `Window.active` is true for
    /// the transient windows' sake even before.
    Q_PROPERTY(bool focused READ focused NOTIFY changed FINAL)

public:
    explicit WindowState(QObject* parent = nullptr)
        : QObject(parent)
    {
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WindowState::changed);
    }

    [[nodiscard]] QWindow* window() const { return m_window; }
    void setWindow(QWindow* window)
    {
        if (m_window)
            m_window->disconnect(this);
        m_window = window;
        if (m_window)
            connect(m_window, &QWindow::visibilityChanged, this, &WindowState::changed);
        Q_EMIT changed();
    }

    [[nodiscard]] bool filling() const
    {
        return m_window
               && (m_window->visibility() == QWindow::Maximized
                   || m_window->visibility() == QWindow::FullScreen);
    }
    [[nodiscard]] bool windowed() const
    {
        return m_window && m_window->visibility() == QWindow::Windowed;
    }
    [[nodiscard]] bool focused() const
    {
        return m_window && m_window == QGuiApplication::focusWindow();
    }

Q_SIGNALS:
    void changed();

private:
    QPointer<QWindow> m_window;
};
