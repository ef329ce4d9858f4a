// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "FakeDesktop.h"

#include <QFont>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <chrono>

/// Lets a view test set the appearance and the font, advance the fake clock and read the clipboard.
class FakeSystem : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    Q_INVOKABLE static void setAppearance(bool dark, bool reducedMotion)
    {
        FakeAppearance::set(dark, reducedMotion);
    }

    Q_INVOKABLE static void setFontPixelSize(int pixels)
    {
        QFont font = QGuiApplication::font();
        font.setPixelSize(pixels);
        QGuiApplication::setFont(font);
    }

    /// The text on the clipboard; "(leer)" while the clipboard is empty.
    Q_INVOKABLE [[nodiscard]] static QString clipboardText()
    {
        return FakeClipboard::text().value_or(QStringLiteral("(leer)"));
    }

    /// Enters the text into the item, as an input method does at the end of a composition.
    Q_INVOKABLE static void commitText(QObject* item, const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(item, &event);
    }

    Q_INVOKABLE static void advanceClock(int milliseconds)
    {
        FakeClock::advance(std::chrono::milliseconds(milliseconds));
    }
};
