// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

/// The end of the process when it cannot continue.
namespace Platform::Termination {

/// Writes `message`, a line without its end, to standard error and ends the process at once with
/// status 1, without destructors and without a core dump.
[[noreturn]] void fail(std::string_view message) noexcept;

/// Writes a line to standard error when a signal ends the process; the exit status stays that of
/// the signal. Ignores the signal of a pipe whose reader has closed it. Does nothing in builds with
/// assertions, which are for debugging.
void reportSignals() noexcept;

/// Whether the limits of the process allow the memory and the file descriptors that the program
/// needs. Libraries abort the process when they reach these limits.
[[nodiscard]] bool hasEnoughResources() noexcept;

} // namespace Platform::Termination
