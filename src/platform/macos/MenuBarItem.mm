// SPDX-License-Identifier: MIT
#include "platform/macos/MenuBarItem.h"

#include "platform/macos/Action.h"
#include "platform/macos/Menu.h"
#include "platform/macos/NSText.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace fadeloom {
namespace {

bool isOfMouse(NSEvent* event)
{
    switch (event.type) {
    case NSEventTypeLeftMouseDown:
    case NSEventTypeLeftMouseUp:
    case NSEventTypeRightMouseDown:
    case NSEventTypeRightMouseUp:
        return true;
    default:
        return false;
    }
}

/// For accessibility presses, the current event may be any, or none: then the keyboard state is queried instead.
/// Control and Option together are VoiceOver's own modifiers.
bool isMenuClick(NSEvent* event)
{
    const bool isMouse = event != nil && isOfMouse(event);
    if (isMouse && (event.type == NSEventTypeRightMouseUp || event.type == NSEventTypeRightMouseDown))
        return true;
    const NSEventModifierFlags held = isMouse ? event.modifierFlags : NSEvent.modifierFlags;
    const bool isControl = (held & NSEventModifierFlagControl) != 0;
    const bool isOption = (held & NSEventModifierFlagOption) != 0;
    return isControl != isOption;
}

}  // namespace

/// The status item.
class MenuBarItem::Shown {
public:
    Shown(NSString* name, std::function<void()> clicked, std::function<void()> isMenuClick)
        : item_([NSStatusBar.systemStatusBar statusItemWithLength:NSSquareStatusItemLength])
        , action_([[FadeloomAction alloc] initWithFunction:std::move(clicked)])
    {
        NSImage* picture = [NSImage imageNamed:@"MenuBarIcon"];
        [picture setTemplate:YES];
        NSStatusBarButton* button = item_.button;
        button.image = picture;
        button.toolTip = name;
        button.accessibilityLabel = name;
        button.target = action_;
        button.action = @selector(act:);
        [button sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
        offerMenu(std::move(isMenuClick));
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    ~Shown() { [NSStatusBar.systemStatusBar removeStatusItem:item_]; }

    [[nodiscard]] NSStatusBarButton* button() const { return item_.button; }

    /// Returns when the menu has closed. If the menu were assigned to the item, every click would open it.
    void open(NSMenu* menu)
    {
        item_.menu = menu;
        [item_.button performClick:nil];
        item_.menu = nil;
    }

private:
    /// For screen readers, which have no right click. Deferred, because the caller waits for the reply.
    void offerMenu(std::function<void()> isMenuClick)
    {
        NSString* name = NSAccessibilityActionDescription(NSAccessibilityShowMenuAction);
        NSAccessibilityCustomAction* action = [[NSAccessibilityCustomAction alloc]
            initWithName:name == nil ? @"show menu" : name
                 handler:^{
                     dispatch_async(dispatch_get_main_queue(), ^{ isMenuClick(); });
                     return YES;
                 }];
        item_.button.accessibilityCustomActions = @[ action ];
    }

    NSStatusItem* const item_;
    FadeloomAction* const action_;
};

MenuBarItem::MenuBarItem() = default;
MenuBarItem::~MenuBarItem() = default;

void MenuBarItem::show(const std::string& name)
{
    @autoreleasepool {
        shown_ = std::make_unique<Shown>(
            nsText(name), [this] { clicked(); }, life_.whileAlive([this] { openMenu(); }));
    }
}

void MenuBarItem::whenClicked(std::function<void()> clicked)
{
    clicked_ = std::move(clicked);
}

void MenuBarItem::whenMenuOpens(std::function<void()> willOpen)
{
    menuOpens_ = std::move(willOpen);
}

void MenuBarItem::setMenu(std::function<StatusMenu()> build)
{
    buildMenu_ = std::move(build);
}

void* MenuBarItem::button() const
{
    return shown_ ? (__bridge void*)shown_->button() : nullptr;
}

void MenuBarItem::clicked()
{
    @autoreleasepool {
        if (isMenuClick(NSApp.currentEvent))
            openMenu();
        else
            clicked_();
    }
}

void MenuBarItem::openMenu()
{
    @autoreleasepool {
        menuOpens_();
        shown_->open(nsMenu(buildMenu_()));
    }
}

}  // namespace fadeloom
