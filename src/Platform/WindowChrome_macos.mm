// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/WindowChrome.h"

#include <QWindow>

#import <AppKit/AppKit.h>

namespace Platform::WindowChrome {

void hideTitleBar(QWindow& window)
{
    NSView* const view = reinterpret_cast<NSView*>(window.winId());
    NSWindow* const frame = view.window;
    frame.titlebarAppearsTransparent = YES;
    frame.titleVisibility = NSWindowTitleHidden;
    frame.styleMask |= NSWindowStyleMaskFullSizeContentView;
}

bool usesClientSideDecorations()
{
    return false;
}

} // namespace Platform::WindowChrome
