// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ContinuousTimer.h"

#include <fcntl.h>
#include <sys/event.h>
#include <unistd.h>

namespace Platform {

ContinuousTimer::ContinuousTimer(std::chrono::nanoseconds wait)
    : m_descriptor(::kqueue())
{
    if (m_descriptor < 0)
        return;
    ::fcntl(m_descriptor, F_SETFD, FD_CLOEXEC);
    struct kevent timer;
    EV_SET(&timer, 0, EVFILT_TIMER, EV_ADD | EV_ONESHOT, NOTE_NSECONDS | NOTE_MACH_CONTINUOUS_TIME,
           wait.count(), nullptr);
    ::kevent(m_descriptor, &timer, 1, nullptr, 0, nullptr);
}

ContinuousTimer::~ContinuousTimer()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

} // namespace Platform
