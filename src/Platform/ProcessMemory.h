// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>

/// The memory of this process, in which secrets lie while it runs.
namespace Platform::ProcessMemory {

// The first two do nothing in builds with assertions, which are there to be debugged.

/// Keeps it out of core dumps.
void keepFromDumps() noexcept;

/// Keeps it out of reach of debuggers and of other programs of the user, who can also see less of
/// the process from then on.
void hide() noexcept;

/// Overwrites bytes with zeros, also where a compiler sees that nobody reads them again.
void wipe(std::span<std::byte> bytes) noexcept;

} // namespace Platform::ProcessMemory
