// SPDX-License-Identifier: MIT
// The popover.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

using namespace doubles;

@implementation NSViewController

- (instancetype)initWithNibName:(NSString*)name bundle:(NSBundle*)bundle
{
    (void)name, (void)bundle;
    return [super init];
}

@end

@implementation NSPopover

- (void)showRelativeToRect:(NSRect)rectangle ofView:(NSView*)view preferredEdge:(NSRectEdge)edge
{
    if (view == nil)
        crash("a popover beside nothing");
    if ([self.delegate respondsToSelector:@selector(popoverWillShow:)])
        [self.delegate popoverWillShow:[[NSNotification alloc] init]];
    note(self.animates ? "popover opens slowly" : "popover opens");
    self.place = rectangle;
    self.anchor = view;
    self.edge = edge;
    self.shown = YES;
}
- (void)performClose:(id)sender
{
    (void)sender;
    [self close];
}
- (void)close
{
    if (!self.shown)
        return;
    note("popover closes");
    self.shown = NO;
    if ([self.delegate respondsToSelector:@selector(popoverDidClose:)])
        [self.delegate popoverDidClose:[[NSNotification alloc] init]];
}

@end
