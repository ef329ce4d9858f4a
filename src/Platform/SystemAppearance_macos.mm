// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ApplicationObject.h"
#include "Platform/SystemAppearance.h"

#import <AppKit/AppKit.h>

namespace Platform {

namespace {

class WorkspaceAppearance final : public SystemAppearance
{
public:
    explicit WorkspaceAppearance(QObject* parent)
        : SystemAppearance(parent)
    {
        // Qt's palette follows the colour scheme on macOS, so only reduced motion is read here.
        update(std::nullopt, [NSWorkspace sharedWorkspace].accessibilityDisplayShouldReduceMotion);
    }
};

} // namespace

void SystemAppearance::startReading(void (* /*restrictReader*/)())
{
}

SystemAppearance& SystemAppearance::instance()
{
    return applicationObject<WorkspaceAppearance>();
}

} // namespace Platform
