// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the look has to follow: the user's wishes, as far as system and toolkit tell them, at any
/// time.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(bool dark READ dark NOTIFY changed FINAL)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed FINAL)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed FINAL)

public:
    explicit Appearance(QObject* parent = nullptr);

    /// Whether text is light on a dark ground: as the system says, or else as the palette is.
    [[nodiscard]] static bool dark();
    /// Whether to leave out all movement that only decorates.
    [[nodiscard]] static bool reducedMotion();
    /// The height of the user's font in units of 13 pixels, and not less than 1.
    [[nodiscard]] static double textScale();

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
