// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Declarations of the parts of macOS's kernel event queues that the program uses.

#pragma once

#include <stdint.h>
#include <time.h>

#define EVFILT_TIMER (-7)
#define EV_ADD 0x0001
#define EV_ONESHOT 0x0010
#define NOTE_NSECONDS 0x00000004
#define NOTE_MACH_CONTINUOUS_TIME 0x00000080

struct kevent
{
    uintptr_t ident;
    int16_t filter;
    uint16_t flags;
    uint32_t fflags;
    intptr_t data;
    void* udata;
};

#define EV_SET(event, a, b, c, d, e, f) (*(event) = {(a), (b), (c), (d), (e), (f)})

extern "C" {

int kqueue(void);
int kevent(int queue, const struct kevent* changes, int changeCount, struct kevent* events,
           int eventCount, const struct timespec* timeout);
}
