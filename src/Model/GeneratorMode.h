// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

/// The kind of secret that is generated.
enum class GeneratorMode : std::uint8_t { password, passphrase };

/// All modes, in the order of the enumerators, which is also their order in the user interface.
inline constexpr std::array allGeneratorModes{GeneratorMode::password, GeneratorMode::passphrase};

/// The mode's German label, which also identifies the mode as text.
[[nodiscard]] QString rawValue(GeneratorMode mode);

/// The mode whose `rawValue` equals `text`, case-sensitively; absent for any other text.
[[nodiscard]] std::optional<GeneratorMode> generatorMode(QStringView text);
