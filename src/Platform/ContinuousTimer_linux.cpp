// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ContinuousTimer.h"

#include <algorithm>

#include <sys/timerfd.h>
#include <unistd.h>

namespace Platform {

using std::chrono::nanoseconds;
using std::chrono::seconds;

ContinuousTimer::ContinuousTimer(nanoseconds wait)
    : m_descriptor(::timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC))
{
    // A wait of zero would disarm the timer.
    const nanoseconds armed = std::max(wait, nanoseconds(1));
    const auto whole = std::chrono::floor<seconds>(armed);
    itimerspec due{};
    due.it_value.tv_sec = whole.count();
    due.it_value.tv_nsec = (armed - whole).count();
    if (m_descriptor >= 0)
        ::timerfd_settime(m_descriptor, 0, &due, nullptr);
}

ContinuousTimer::~ContinuousTimer()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

} // namespace Platform
