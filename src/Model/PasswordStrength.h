// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

/// How well a secret withstands guessing, from weakest to strongest.
enum class PasswordStrength : std::uint8_t { weak, fair, good, strong };

/// The German word shown for the level.
[[nodiscard]] QString title(PasswordStrength strength);

/// The name of the symbol shown beside the level's title.
[[nodiscard]] QString systemImage(PasswordStrength strength);
