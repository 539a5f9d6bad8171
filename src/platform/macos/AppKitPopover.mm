// SPDX-License-Identifier: MIT
#include "platform/macos/AppKitPopover.h"

#include "platform/macos/MenuBarItem.h"

#import <AppKit/AppKit.h>

#include <utility>

@interface FadeloomPopoverDelegate : NSObject <NSPopoverDelegate> {
@public
    std::function<void()> willShow;
    std::function<void()> didClose;
}
@end

@implementation FadeloomPopoverDelegate

- (void)popoverWillShow:(NSNotification*)notification
{
    (void)notification;
    if (willShow)
        willShow();
}

- (void)popoverDidClose:(NSNotification*)notification
{
    (void)notification;
    if (didClose)
        didClose();
}

@end

namespace fadeloom {

class AppKitPopover::Parts {
public:
    Parts()
        : popover([[NSPopover alloc] init])
        , delegate([[FadeloomPopoverDelegate alloc] init])
    {
        NSViewController* content = [[NSViewController alloc] initWithNibName:nil bundle:nil];
        content.view = [[NSView alloc] initWithFrame:NSZeroRect];
        popover.contentViewController = content;
        popover.behavior = NSPopoverBehaviorTransient;
        popover.delegate = delegate;
    }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;
    ~Parts()
    {
        popover.delegate = nil;  // Its end must not be told to somebody half gone.
        [popover close];
    }

    NSPopover* const popover;
    FadeloomPopoverDelegate* const delegate;  // Which the popover does not keep.
};

AppKitPopover::AppKitPopover(const MenuBarItem& item)
    : item_(item)
    , parts_(std::make_unique<Parts>())
{
}

AppKitPopover::~AppKitPopover() = default;

void* AppKitPopover::contentView() const
{
    return (__bridge void*)parts_->popover.contentViewController.view;
}

void AppKitPopover::setContentSize(double width, double height)
{
    parts_->popover.contentSize = NSMakeSize(width, height);
}

void AppKitPopover::show()
{
    @autoreleasepool {
        NSView* button = (__bridge NSView*)item_.button();
        [parts_->popover showRelativeToRect:button.bounds ofView:button preferredEdge:NSRectEdgeMinY];
        NSView* content = parts_->popover.contentViewController.view;
        [content.window makeKeyWindow];
        [content.window makeFirstResponder:content.subviews.firstObject];  // Whoever draws gets the keys.
    }
}

void AppKitPopover::close()
{
    @autoreleasepool {
        [parts_->popover performClose:nil];
    }
}

bool AppKitPopover::isShown() const
{
    return parts_->popover.shown;
}

void AppKitPopover::setAnimated(bool isAnimated)
{
    parts_->popover.animates = isAnimated;
}

void AppKitPopover::whenShown(std::function<void()> willShow)
{
    parts_->delegate->willShow = std::move(willShow);
}

void AppKitPopover::whenClosed(std::function<void()> didClose)
{
    parts_->delegate->didClose = std::move(didClose);
}

}  // namespace fadeloom
