// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Declarations of the parts of macOS's AppKit that the program uses and GNUstep's AppKit lacks.

#pragma once

#include_next <AppKit/AppKit.h>

@interface NSPasteboard (MissingInGNUstep)
- (NSInteger)clearContents;
@end

typedef NS_ENUM(NSInteger, NSWindowTitleVisibility) {
    NSWindowTitleVisible = 0,
    NSWindowTitleHidden = 1,
};

@interface NSWindow (MissingInGNUstep)
@property(readwrite) NSUInteger styleMask;
@property BOOL titlebarAppearsTransparent;
@property NSWindowTitleVisibility titleVisibility;
@end

@interface NSWorkspace (MissingInGNUstep)
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
@end
