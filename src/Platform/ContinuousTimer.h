// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace Platform {

/// A timer of the system's continuous clock, due once.
class ContinuousTimer final
{
public:
    /// Starts at once; due when `wait` (0 or more) has passed.
    explicit ContinuousTimer(std::chrono::nanoseconds wait);
    ~ContinuousTimer();
    ContinuousTimer(const ContinuousTimer&) = delete;
    ContinuousTimer& operator=(const ContinuousTimer&) = delete;
    ContinuousTimer(ContinuousTimer&&) = delete;
    ContinuousTimer& operator=(ContinuousTimer&&) = delete;

    /// A file descriptor that can be read from once the timer is due. Negative if the system has no
    /// timer left to give.
    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace Platform
