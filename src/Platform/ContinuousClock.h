// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>

/// A monotonic clock that continues while the machine is suspended.
namespace Platform::ContinuousClock {

/// Calls `task` once from the application's event loop, when `wait` (0 or more) has passed or, if
/// the machine is suspended at that time, as soon as the machine resumes. A task that is pending
/// when the application ends is dropped. Used only on the main thread.
void after(std::chrono::milliseconds wait, std::function<void()> task);

} // namespace Platform::ContinuousClock
