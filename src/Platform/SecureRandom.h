// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace Platform {

/// Fills all of `bytes` (at most 256) from the system's cryptographically secure source with one
/// request. Blocks only until the system has seeded that source.
/// Returns 0 on success, else the system's status; `bytes` are unspecified after a failure.
[[nodiscard]] std::int32_t fillSecureRandom(std::span<std::byte> bytes) noexcept;

} // namespace Platform
