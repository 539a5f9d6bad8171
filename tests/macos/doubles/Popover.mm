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

namespace {

__unsafe_unretained NSPopover* madePopover = nil;

}  // namespace

@implementation NSPopover {
    NSSize contentSize_;
}

- (instancetype)init
{
    if ((self = [super init]))
        madePopover = self;
    return self;
}
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
    // Once it has appeared, in a later iteration.
    dispatch_async(dispatch_get_main_queue(), ^{
        if (self.shown && [self.delegate respondsToSelector:@selector(popoverDidShow:)])
            [self.delegate popoverDidShow:[[NSNotification alloc] init]];
    });
}
- (void)setContentSize:(NSSize)size
{
    if (self.shown)
        note(self.animates ? "popover grows slowly" : "popover grows");
    contentSize_ = size;
}
- (NSSize)contentSize
{
    return contentSize_;
}
- (void)pressElsewhere
{
    if (self.behavior == NSPopoverBehaviorTransient)
        [self close];
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
    if ([self.delegate respondsToSelector:@selector(popoverWillClose:)])
        [self.delegate popoverWillClose:[[NSNotification alloc] init]];
    note("popover closes");
    self.shown = NO;
    if ([self.delegate respondsToSelector:@selector(popoverDidClose:)])
        [self.delegate popoverDidClose:[[NSNotification alloc] init]];
}

@end

namespace doubles {

NSPopover* lastPopover()
{
    return madePopover;
}

}  // namespace doubles
