// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/Controls/Appearance.h"

#include "Platform/SystemAppearance.h"

#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QStyleHints>

#include <algorithm>
#include <optional>

namespace {

using Platform::SystemAppearance;

constexpr int bodyTextPixels = 13;

bool paletteIsDark()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    if (const auto scheme = QGuiApplication::styleHints()->colorScheme();
        scheme != Qt::ColorScheme::Unknown) {
        return scheme == Qt::ColorScheme::Dark;
    }
#endif
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness()
           < palette.color(QPalette::WindowText).lightness();
}

} // namespace

Appearance::Appearance(QObject* parent)
    : QObject(parent)
{
    qGuiApp->installEventFilter(this);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
            &Appearance::changed);
#endif
    if (const QScreen* const screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::logicalDotsPerInchChanged, this, &Appearance::changed);
    connect(&SystemAppearance::instance(), &SystemAppearance::changed, this, &Appearance::changed);
}

bool Appearance::dark()
{
    const std::optional<bool> isDark = SystemAppearance::instance().isDark();
    return isDark ? *isDark : paletteIsDark();
}

bool Appearance::reducedMotion()
{
    return SystemAppearance::instance().isMotionReduced();
}

double Appearance::textScale()
{
    const int pixels = QFontInfo(QGuiApplication::font()).pixelSize();
    return std::max(1.0, static_cast<double>(pixels) / bodyTextPixels);
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qGuiApp
        && (event->type() == QEvent::ApplicationPaletteChange
            || event->type() == QEvent::ApplicationFontChange)) {
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}
