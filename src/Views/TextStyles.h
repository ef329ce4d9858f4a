// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The fonts of the look. Each is set in one piece: for every font on the way to another, Qt would
/// look for a font file.
class TextStyles : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    /// The height of the user's font in units of 13 pixels.
    Q_PROPERTY(double scale READ scale WRITE setScale NOTIFY changed REQUIRED FINAL)

    Q_PROPERTY(QFont title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QFont title2 READ title2 NOTIFY changed FINAL)
    Q_PROPERTY(QFont headline READ headline NOTIFY changed FINAL)
    Q_PROPERTY(QFont body READ body NOTIFY changed FINAL)
    Q_PROPERTY(QFont callout READ callout NOTIFY changed FINAL)
    Q_PROPERTY(QFont rating READ rating NOTIFY changed FINAL)
    Q_PROPERTY(QFont caption READ caption NOTIFY changed FINAL)
    Q_PROPERTY(QFont credit READ credit NOTIFY changed FINAL)
    Q_PROPERTY(QFont caption2 READ caption2 NOTIFY changed FINAL)
    Q_PROPERTY(QFont value READ value NOTIFY changed FINAL)
    Q_PROPERTY(QFont longValue READ longValue NOTIFY changed FINAL)
    Q_PROPERTY(QFont row READ row NOTIFY changed FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] double scale() const { return m_scale; }
    void setScale(double scale);

    [[nodiscard]] QFont title() const { return text(22, QFont::Bold); }
    [[nodiscard]] QFont title2() const { return text(17, QFont::Bold); }
    [[nodiscard]] QFont headline() const { return text(13, QFont::DemiBold); }
    [[nodiscard]] QFont body() const { return text(13, QFont::Normal); }
    [[nodiscard]] QFont callout() const { return text(12, QFont::Normal); }
    [[nodiscard]] QFont rating() const { return text(12, QFont::Medium); }
    [[nodiscard]] QFont caption() const { return text(11, QFont::Normal); }
    [[nodiscard]] QFont credit() const { return text(11, QFont::Medium); }
    [[nodiscard]] QFont caption2() const { return text(11, QFont::Normal); }
    [[nodiscard]] QFont value() const { return secret(28, QFont::DemiBold); }
    [[nodiscard]] QFont longValue() const { return secret(22, QFont::DemiBold); }
    [[nodiscard]] QFont row() const { return secret(12, QFont::Normal); }

    /// `font` at another height, in pixels.
    [[nodiscard]] Q_INVOKABLE static QFont resized(QFont font, int pixels);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QFont text(int pixels, QFont::Weight weight) const;
    [[nodiscard]] QFont secret(int pixels, QFont::Weight weight) const;

    double m_scale = 1;
};
