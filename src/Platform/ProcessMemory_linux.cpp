// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ProcessMemory.h"

#include <cstring>

#include <sys/prctl.h>
#include <sys/resource.h>

namespace Platform::ProcessMemory {

void keepFromDumps() noexcept
{
#ifdef NDEBUG
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
#endif
}

void hide() noexcept
{
#ifdef NDEBUG
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): prctl is variadic
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
#endif
}

void wipe(std::span<std::byte> bytes) noexcept
{
    ::explicit_bzero(bytes.data(), bytes.size());
}

} // namespace Platform::ProcessMemory
