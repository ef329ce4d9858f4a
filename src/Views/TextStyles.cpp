// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Views/TextStyles.h"

#include <QGuiApplication>

#include <cmath>

void TextStyles::setScale(double scale)
{
    m_scale = scale;
    Q_EMIT changed();
}

QFont TextStyles::resized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}

QFont TextStyles::text(int pixels, QFont::Weight weight) const
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(static_cast<int>(std::lround(pixels * m_scale)));
    font.setWeight(weight);
    // Left to themselves, controls ask the desktop and not the application.
    font.setHintingPreference(font.hintingPreference());
    return font;
}

QFont TextStyles::secret(int pixels, QFont::Weight weight) const
{
    QFont font = text(pixels, weight);
    font.setFamily(QStringLiteral("monospace"));
    return font;
}
