// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/WindowChrome.h"

#include <QWindow>

#import <AppKit/AppKit.h>

/// The target of the menu item's action.
@interface MorvaneAboutTarget : NSObject {
@public
    std::function<void()> chosen;
}
- (void)choose:(id)sender;
@end

@implementation MorvaneAboutTarget
- (void)choose:(id)sender
{
    chosen();
}
@end

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

void setAboutCommand(const QString& title, const std::function<void()>& chosen)
{
    // A menu item does not retain its target.
    static MorvaneAboutTarget* const target = [[MorvaneAboutTarget alloc] init];
    target->chosen = chosen;

    NSMenu* const menu = [[[NSApp mainMenu] itemAtIndex:0] submenu];
    if ([menu numberOfItems] > 0 &&
        [[menu itemAtIndex:0] action] == @selector(orderFrontStandardAboutPanel:))
        [menu removeItemAtIndex:0];
    NSMenuItem* const item = [[NSMenuItem alloc] initWithTitle:title.toNSString()
                                                        action:@selector(choose:)
                                                 keyEquivalent:@""];
    [item setTarget:target];
    [menu insertItem:item atIndex:0];
    [item release];
}

} // namespace Platform::WindowChrome
