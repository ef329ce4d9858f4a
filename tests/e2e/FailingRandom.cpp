// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that replaces getrandom: requests of 8 bytes, which only the program
// makes, fail; requests of other sizes, which libraries make, are passed on.
//
// If the environment variable MORVANE_RANDOM_CONTROL names a file, this file holds a Control. The
// library counts the program's requests there, and the requests fail only while `fails` is not 0.

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
    static Control alwaysFailing{.draws = 0, .fails = 1};
    // NOLINTNEXTLINE(concurrency-mt-unsafe): runs before a second thread starts
    const char* const name = std::getenv("MORVANE_RANDOM_CONTROL");
    if (!name)
        return &alwaysFailing;
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

// Opens the file before the sandbox forbids opening files for writing.
[[maybe_unused]] const Control& openedEarly = control();

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
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym returns void*
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "getrandom"));
    return next(buffer, size, flags);
}
