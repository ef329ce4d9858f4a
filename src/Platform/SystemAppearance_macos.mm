// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ProcessMemory.h"
#include "Platform/SystemAppearance.h"

#import <AppKit/AppKit.h>

namespace Platform {

// The colour scheme reaches Qt's palette by itself.
void SystemAppearance::observe(QObject* /*observer*/,
                               std::function<void(const SystemAppearance&)> changed)
{
    const bool reducedMotion = [NSWorkspace sharedWorkspace].accessibilityDisplayShouldReduceMotion;
    if (reducedMotion)
        changed({.dark = std::nullopt, .reducedMotion = true});
    ProcessMemory::hide();
}

} // namespace Platform
