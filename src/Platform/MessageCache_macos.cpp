// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/MessageCache.h"

// Screen readers do not use D-Bus.
void Platform::MessageCache::wipe()
{
}
