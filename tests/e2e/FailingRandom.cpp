// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Loaded in front of the C library, this makes the system's random source fail for the program's
// draws. Libraries ask for other sizes, and are served.
//
// If the environment names a file, draws are counted in it, and fail only while it says so.

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

struct Control
{
    std::atomic<std::uint64_t> draws;
    std::atomic<std::uint64_t> fails;
};

Control* sharedControl()
{
    static Control alone{.draws = 0, .fails = 1};
    // NOLINTNEXTLINE(concurrency-mt-unsafe): before there is a second thread
    const char* const name = std::getenv("MORVANE_RANDOM_CONTROL");
    if (!name)
        return &alone;
    const int file = ::open(name, O_RDWR | O_CLOEXEC);
    void* const page
        = ::mmap(nullptr, sizeof(Control), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (page == MAP_FAILED)
        std::abort();
    ::close(file);
    return static_cast<Control*>(page);
}

Control& control()
{
    static Control* const shared = sharedControl();
    return *shared;
}

// Before the program can keep itself from opening files.
[[maybe_unused]] const Control& early = control();

} // namespace

extern "C" ssize_t getrandom(void* buffer, std::size_t size, unsigned int flags)
{
    if (size == 8) {
        ++control().draws;
        if (control().fails != 0) {
            errno = ENOSYS;
            return -1;
        }
    }
    using Function = ssize_t (*)(void*, std::size_t, unsigned int);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym yields has no type
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "getrandom"));
    return next(buffer, size, flags);
}
