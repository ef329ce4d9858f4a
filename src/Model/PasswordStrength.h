// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

/// How well a secret withstands guessing, from weakest to strongest.
enum class PasswordStrength : std::uint8_t { weak, fair, good, strong };

/// The German name of the level.
[[nodiscard]] QString title(PasswordStrength strength);

/// The name of the level's symbol.
[[nodiscard]] QString systemImage(PasswordStrength strength);
