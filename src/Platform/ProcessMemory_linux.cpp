// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ProcessMemory.h"

#include <cstring>

#include <sys/prctl.h>

namespace Platform::ProcessMemory {

void hide() noexcept
{
#ifdef NDEBUG
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): prctl has no other form
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
#endif
}

void wipe(std::span<std::byte> bytes) noexcept
{
    ::explicit_bzero(bytes.data(), bytes.size());
}

} // namespace Platform::ProcessMemory
