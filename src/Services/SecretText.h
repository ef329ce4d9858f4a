// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace SecretText {

/// Overwrites the characters of `text` with zeros and empties `text`. Does nothing if another
/// QString shares the characters.
void wipe(QString& text);

} // namespace SecretText
