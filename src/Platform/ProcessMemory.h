// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>

/// The memory of this process, in which secrets lie while it runs.
namespace Platform::ProcessMemory {

/// Keeps it out of core dumps, and out of reach of debuggers and of other programs of the user.
/// Does nothing in builds with assertions, which are there to be debugged.
void hide() noexcept;

/// Overwrites bytes with zeros, also where a compiler sees that nobody reads them again.
void wipe(std::span<std::byte> bytes) noexcept;

} // namespace Platform::ProcessMemory
