// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// Measures of text in user-perceived characters, for QML.
class PerceivedText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The number of user-perceived characters of `text`.
    Q_INVOKABLE [[nodiscard]] static int count(const QString& text);

    /// The first `count` (0 or more) user-perceived characters; all of `text` if it has no more.
    Q_INVOKABLE [[nodiscard]] static QString first(const QString& text, int count);
};
