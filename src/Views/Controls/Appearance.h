// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QGuiApplication>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The user's preferences that the look follows, from the system and from Qt.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(bool dark READ dark NOTIFY changed FINAL)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed FINAL)
    Q_PROPERTY(QFont font READ font NOTIFY changed FINAL)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed FINAL)

public:
    explicit Appearance(QObject* parent = nullptr);

    /// Whether text is light on a dark ground: by the system's preference, or else by the palette.
    [[nodiscard]] static bool dark();
    /// Whether animations that serve decoration only are left out.
    [[nodiscard]] static bool reducedMotion();
    /// The user's font.
    [[nodiscard]] static QFont font() { return QGuiApplication::font(); }
    /// The size of the user's font in units of 13 pixels, 1 or more.
    [[nodiscard]] static double textScale();

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
