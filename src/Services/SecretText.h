// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace SecretText {

/// Overwrites the characters of `text` with zeros and empties it, unless somebody else shares them.
void wipe(QString& text);

} // namespace SecretText
