// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>

/// The clock that only ever runs forward, and goes on while the machine sleeps.
namespace Platform::ContinuousClock {

/// Calls `task` once on the calling thread's event loop, when `wait` (0 or more) has passed or, if
/// the machine was asleep then, as soon as it is awake. Nothing cancels it but the program's end.
void after(std::chrono::milliseconds wait, std::function<void()> task);

} // namespace Platform::ContinuousClock
