// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Disconnects `input`, a `TextInput`, from the changes of the clipboard. To update its property
/// `canPaste`, a `TextInput` requests the formats of each new contents, and up to 5 s pass if the
/// owner of the contents does not answer (Qt 6.4 on X11). `canPaste` is out of date afterwards.
class ClipboardIgnorer : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* input MEMBER m_input WRITE setInput REQUIRED FINAL)

public:
    using QObject::QObject;

    /// Called once.
    void setInput(QQuickItem* input)
    {
        m_input = input;
        QObject::disconnect(QGuiApplication::clipboard(), nullptr, input, nullptr);
    }

private:
    QQuickItem* m_input = nullptr;
};
