// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

/// Which kind of secret is generated.
enum class GeneratorMode : std::uint8_t { password, passphrase };

/// Every mode, in the order in which a choice shows them.
inline constexpr std::array allGeneratorModes{GeneratorMode::password, GeneratorMode::passphrase};

/// The mode's German label, which also identifies it as text.
[[nodiscard]] QString rawValue(GeneratorMode mode);

/// The mode whose `rawValue` is exactly `text`, upper and lower case told apart, if any.
[[nodiscard]] std::optional<GeneratorMode> generatorMode(QStringView text);
