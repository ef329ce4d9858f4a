// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorSettings.h"

#include <QFont>
#include <QObject>
#include <QQuickTextDocument>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// Lays out the secret in the document of a `TextEdit` on balanced, centred lines, without line
/// breaks in the text. A passphrase breaks between its words, and any other text between any two
/// grapheme clusters.
class SecretLayout : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickTextDocument* document MEMBER m_document WRITE setDocument REQUIRED FINAL)

public:
    using QObject::QObject;

    /// Called once.
    void setDocument(QQuickTextDocument* document);

    /// The greatest pixel size, from that of `font` down to `smallest`, at which `secret` fits on
    /// three lines of `width`; 0 if there is none.
    Q_INVOKABLE static int fittingSize(const QString& secret, const QFont& font, int smallest,
                                       double width);

    /// The height of the lines that secrets of `settings` can need.
    Q_INVOKABLE static double neededHeight(const GeneratorSettings& settings,
                                           const QFont& shortFont, const QFont& longFont,
                                           double width);

private:
    QQuickTextDocument* m_document = nullptr;
};
