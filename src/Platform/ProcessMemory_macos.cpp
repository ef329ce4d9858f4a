// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#define __STDC_WANT_LIB_EXT1__ 1

#include "Platform/ProcessMemory.h"

#include <cstring>

#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/types.h>

namespace Platform::ProcessMemory {

void hide() noexcept
{
#ifdef NDEBUG
    ::ptrace(PT_DENY_ATTACH, 0, nullptr, 0);
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
#endif
}

void wipe(std::span<std::byte> bytes) noexcept
{
    ::memset_s(bytes.data(), bytes.size(), 0, bytes.size());
}

} // namespace Platform::ProcessMemory
