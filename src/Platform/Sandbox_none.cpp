// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// For builds without the Linux sandbox: macOS restricts a bundle by its entitlements, and
// tests observe the program without restrictions.

#include "Platform/Sandbox.h"

namespace Platform::Sandbox {

void discardInheritance() noexcept
{
}

void restrictFilesystem() noexcept
{
}

bool isDisplayRemote() noexcept
{
    return false;
}

void installSyscallFilter() noexcept
{
}

} // namespace Platform::Sandbox
