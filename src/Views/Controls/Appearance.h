// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QGuiApplication>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The user's preferences for colours, motion and fonts, as the system and Qt report them.
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

    /// Whether the colour scheme is dark. If the system has no setting, the colour scheme is
    /// taken from Qt.
    [[nodiscard]] static bool dark();
    /// Whether decorative animations are disabled.
    [[nodiscard]] static bool reducedMotion();
    /// The default font of the application.
    [[nodiscard]] static QFont font() { return QGuiApplication::font(); }
    /// The pixel size of `font` divided by 13, at least 1.
    [[nodiscard]] static double textScale();

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
