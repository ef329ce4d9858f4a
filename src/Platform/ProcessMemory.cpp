// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ProcessMemory.h"

#include <sys/resource.h>

namespace Platform::ProcessMemory {

void keepFromDumps() noexcept
{
#ifdef NDEBUG
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
#endif
}

} // namespace Platform::ProcessMemory
