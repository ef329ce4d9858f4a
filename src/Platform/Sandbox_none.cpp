// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// For builds that leave the sandbox to others: a bundle's entitlements, or a test that shows
// what the program does by itself.

#include "Platform/Sandbox.h"

namespace Platform::Sandbox {

void restrictFilesystem() noexcept
{
}

void installSyscallFilter() noexcept
{
}

} // namespace Platform::Sandbox
