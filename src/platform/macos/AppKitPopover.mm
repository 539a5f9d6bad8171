// SPDX-License-Identifier: MIT
#include "platform/macos/AppKitPopover.h"

#include "platform/macos/MenuBarItem.h"

#import <AppKit/AppKit.h>

#include <optional>
#include <utility>

/// Content is anchored to the upper edge and grows downwards, like Qt's windows.
@interface FadeloomPopoverView : NSView
@end

@implementation FadeloomPopoverView

- (BOOL)isFlipped
{
    return YES;
}

@end

@interface FadeloomPopoverDelegate : NSObject <NSPopoverDelegate> {
@public
    std::function<void()> willShow;
    std::function<void()> didShow;
    std::function<void()> willClose;
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

- (void)popoverDidShow:(NSNotification*)notification
{
    (void)notification;
    didShow();
}

- (void)popoverWillClose:(NSNotification*)notification
{
    (void)notification;
    willClose();
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
    explicit Parts(const MenuBarItem& item)
        : popover([[NSPopover alloc] init])
        , delegate([[FadeloomPopoverDelegate alloc] init])
        , item_(item)
    {
        NSViewController* content = [[NSViewController alloc] initWithNibName:nil bundle:nil];
        content.view = [[FadeloomPopoverView alloc] initWithFrame:NSZeroRect];
        popover.contentViewController = content;
        popover.behavior = NSPopoverBehaviorTransient;
        popover.delegate = delegate;
        // Both may happen long after `show` has returned.
        delegate->didShow = [this] { takeKeyboard(); };
        delegate->willClose = [this] { noteClose(); };
        activeObserver_ =
            [NSNotificationCenter.defaultCenter addObserverForName:NSApplicationDidBecomeActiveNotification
                                                            object:nil
                                                             queue:nil
                                                        usingBlock:^(NSNotification*) { takeKeyboard(); }];
    }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;
    ~Parts()
    {
        [NSNotificationCenter.defaultCenter removeObserver:activeObserver_];
        popover.delegate = nil;  // Closing must not be reported to a partly destroyed object.
        [popover close];
    }

    [[nodiscard]] NSView* button() const { return (__bridge NSView*)item_.button(); }
    void show()
    {
        closedByPress_ = std::nullopt;
        [popover showRelativeToRect:button().bounds ofView:button() preferredEdge:NSRectEdgeMinY];
        takeKeyboard();
    }
    void close()
    {
        [popover performClose:nil];
        closedByPress_ = std::nullopt;
    }
    /// A press on the item closes the popover, like any press outside it; the click that follows must not reopen it.
    [[nodiscard]] bool isBeingClosedByClick() const
    {
        return closedByPress_ && NSProcessInfo.processInfo.systemUptime - *closedByPress_ < clickTime;
    }

    NSPopover* const popover;
    FadeloomPopoverDelegate* const delegate;  // Not retained by the popover.

private:
    void takeKeyboard() const
    {
        if (!popover.shown)
            return;
        NSView* content = popover.contentViewController.view;
        [content.window makeKeyWindow];
        // The content view receives the keys.
        [content.window makeFirstResponder:content.subviews.firstObject];
    }
    void noteClose()
    {
        NSWindow* bar = button().window;
        if (bar != nil && NSPointInRect(NSEvent.mouseLocation, bar.frame))
            closedByPress_ = NSProcessInfo.processInfo.systemUptime;
    }

    static constexpr NSTimeInterval clickTime = 1;  // The maximum duration of a press, in seconds.

    const MenuBarItem& item_;
    id activeObserver_ = nil;
    std::optional<NSTimeInterval> closedByPress_;
};

AppKitPopover::AppKitPopover(const MenuBarItem& item)
    : parts_(std::make_unique<Parts>(item))
{
}

AppKitPopover::~AppKitPopover() = default;

void* AppKitPopover::contentView() const
{
    return (__bridge void*)parts_->popover.contentViewController.view;
}

void AppKitPopover::setContentSize(double width, double height)
{
    // Expanding a row resizes the popover immediately; intermediate sizes are never drawn.
    NSPopover* popover = parts_->popover;
    const BOOL isAnimated = popover.animates;
    popover.animates = NO;
    popover.contentSize = NSMakeSize(width, height);
    popover.animates = isAnimated;
}

void AppKitPopover::show()
{
    @autoreleasepool {
        if (const auto make = std::exchange(makeContent_, nullptr))
            make();
        parts_->show();
    }
}

void AppKitPopover::close()
{
    @autoreleasepool {
        parts_->close();
    }
}

bool AppKitPopover::isShown() const
{
    @autoreleasepool {
        return parts_->popover.shown || parts_->isBeingClosedByClick();
    }
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
