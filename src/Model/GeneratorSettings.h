// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorMode.h"

#include <QMetaType>
#include <QString>

/// The user's choices for both modes, so that changing the mode loses none of them.
///
///     const GeneratorSettings settings{.length = 12, .symbols = false};
///
/// The record accepts any integer; the settings panel offers the valid ranges.
struct GeneratorSettings
{
    Q_GADGET
    Q_PROPERTY(GeneratorMode mode MEMBER mode FINAL)
    Q_PROPERTY(qint64 length MEMBER length FINAL)
    Q_PROPERTY(bool lowercase MEMBER lowercase FINAL)
    Q_PROPERTY(bool uppercase MEMBER uppercase FINAL)
    Q_PROPERTY(bool numbers MEMBER numbers FINAL)
    Q_PROPERTY(bool symbols MEMBER symbols FINAL)
    Q_PROPERTY(bool avoidAmbiguous MEMBER avoidAmbiguous FINAL)
    Q_PROPERTY(bool requireEveryGroup MEMBER requireEveryGroup FINAL)
    Q_PROPERTY(qint64 wordCount MEMBER wordCount FINAL)
    Q_PROPERTY(QString separator MEMBER separator FINAL)
    Q_PROPERTY(bool capitalizeWords MEMBER capitalizeWords FINAL)
    Q_PROPERTY(bool appendNumber MEMBER appendNumber FINAL)

public:
    GeneratorMode mode = GeneratorMode::password;

    /// Number of characters of a password.
    qint64 length = 20;
    bool lowercase = true;
    bool uppercase = true;
    bool numbers = true;
    bool symbols = true;
    /// Leave out look-alike characters.
    bool avoidAmbiguous = true;
    /// Include at least one character of every enabled group.
    bool requireEveryGroup = true;

    /// Number of words of a passphrase.
    qint64 wordCount = 5;
    /// The text between the words and before the number, used verbatim.
    QString separator = QStringLiteral("-");
    bool capitalizeWords = false;
    bool appendNumber = true;

    /// All twelve fields are equal; separators compare by canonical equivalence.
    friend bool operator==(const GeneratorSettings& left, const GeneratorSettings& right);
};
