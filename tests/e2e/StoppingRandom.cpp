// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that stops the program when it requests its first random number, so that
// a test can examine the process before its first secret. Libraries make requests of other sizes.

#include <atomic>
#include <csignal>
#include <cstddef>

#include <dlfcn.h>
#include <sys/types.h>

extern "C" ssize_t getrandom(void* buffer, std::size_t size, unsigned int flags)
{
    static std::atomic_flag hasStopped;
    if (size == 8 && !hasStopped.test_and_set())
        ::raise(SIGSTOP);
    using Function = ssize_t (*)(void*, std::size_t, unsigned int);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym returns void*
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "getrandom"));
    return next(buffer, size, flags);
}
