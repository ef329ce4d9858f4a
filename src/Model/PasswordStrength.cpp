// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/PasswordStrength.h"

#include <QtGlobal>

QString title(PasswordStrength strength)
{
    switch (strength) {
    case PasswordStrength::weak:
        return QStringLiteral("Schwach");
    case PasswordStrength::fair:
        return QStringLiteral("Mittel");
    case PasswordStrength::good:
        return QStringLiteral("Gut");
    case PasswordStrength::strong:
        return QStringLiteral("Stark");
    }
    Q_UNREACHABLE();
}

QString systemImage(PasswordStrength strength)
{
    switch (strength) {
    case PasswordStrength::weak:
        return QStringLiteral("shield.slash");
    case PasswordStrength::fair:
        return QStringLiteral("shield.lefthalf.filled");
    case PasswordStrength::good:
        return QStringLiteral("shield");
    case PasswordStrength::strong:
        return QStringLiteral("checkmark.shield.fill");
    }
    Q_UNREACHABLE();
}
