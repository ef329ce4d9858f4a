// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// For builds that leave the confinement to others: a bundle's entitlements, or a test that shows
// what the program does by itself.

#include "Platform/Confinement.h"

namespace Platform::Confinement {

void closeFiles() noexcept
{
}

void closeSystem() noexcept
{
}

} // namespace Platform::Confinement
