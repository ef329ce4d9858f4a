// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Loaded in front of the C library, this makes the system's random source fail for the program's
// draws. Libraries ask for other sizes, and are served.

#include <cerrno>
#include <cstddef>

#include <dlfcn.h>
#include <sys/types.h>

extern "C" ssize_t getrandom(void* buffer, std::size_t size, unsigned int flags)
{
    if (size == 8) {
        errno = ENOSYS;
        return -1;
    }
    using Function = ssize_t (*)(void*, std::size_t, unsigned int);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym yields has no type
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "getrandom"));
    return next(buffer, size, flags);
}
