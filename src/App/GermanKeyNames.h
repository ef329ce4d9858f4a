// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

/// The German names of Ctrl and Shift, the only modifier keys in displayed shortcuts. Qt's
/// translations are not used, because they are a separate package and follow the language of the
/// system.
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
        if (qstrcmp(context, "QShortcut") == 0 && qstrcmp(text, "Shift") == 0)
            return QStringLiteral("Umschalt");
        return {};
    }
};
