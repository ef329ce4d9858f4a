// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>

/// The memory of this process, which holds secrets.
namespace Platform::ProcessMemory {

/// Denies debuggers and other programs of the user access to the memory and to most of the
/// process's entries in /proc, and excludes the memory from core dumps. Does nothing in builds with
/// assertions, which are for debugging.
void hide() noexcept;

/// Overwrites `bytes` with zeros. The compiler does not optimise the writes away.
void wipe(std::span<std::byte> bytes) noexcept;

} // namespace Platform::ProcessMemory
