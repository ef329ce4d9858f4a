// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ProcessMemory.h"

#include <cstring>

#include <sys/prctl.h>
#include <sys/resource.h>

namespace Platform::ProcessMemory {

void hide() noexcept
{
#ifdef NDEBUG
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): prctl is variadic
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    // The kernel passes no core dump to a program if the limit is 1; it does so if the limit is 0.
    const rlimit limit{1, 1};
    ::setrlimit(RLIMIT_CORE, &limit);
#endif
}

void wipe(std::span<std::byte> bytes) noexcept
{
    ::explicit_bzero(bytes.data(), bytes.size());
}

} // namespace Platform::ProcessMemory
