// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/Clipboard.h"

#import <AppKit/AppKit.h>

namespace Platform::Clipboard {

void setSecret(const QString& text)
{
    NSPasteboard* const pasteboard = [NSPasteboard generalPasteboard];
    [pasteboard clearContents];
    [pasteboard setString:text.toNSString() forType:NSPasteboardTypeString];
}

void clear()
{
    [[NSPasteboard generalPasteboard] clearContents];
}

std::int64_t changeCount()
{
    return [NSPasteboard generalPasteboard].changeCount;
}

} // namespace Platform::Clipboard
