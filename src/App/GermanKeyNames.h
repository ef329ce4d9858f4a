// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

/// The German name of Ctrl, the only modifier key in displayed shortcuts. Qt's translations are not
/// used, because they are a separate package and follow the language of the system.
class GermanKeyNames final : public QTranslator
{
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char* context, const char* text, const char* /*comment*/,
                                    int /*count*/) const override
    {
        if (qstrcmp(context, "QShortcut") == 0 && qstrcmp(text, "Ctrl") == 0)
            return QStringLiteral("Strg");
        return {};
    }
};
