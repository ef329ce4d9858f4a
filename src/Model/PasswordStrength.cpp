// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/PasswordStrength.h"

#include <QStringView>

#include <array>
#include <cstddef>

namespace {

// In the order of the levels.
constexpr std::array<QStringView, 4> titles{u"Schwach", u"Mittel", u"Gut", u"Stark"};
constexpr std::array<QStringView, 4> systemImages{
    u"shield.slash",
    u"shield.lefthalf.filled",
    u"shield",
    u"checkmark.shield.fill",
};

} // namespace

QString title(PasswordStrength strength)
{
    return titles.at(static_cast<std::size_t>(strength)).toString();
}

QString systemImage(PasswordStrength strength)
{
    return systemImages.at(static_cast<std::size_t>(strength)).toString();
}
