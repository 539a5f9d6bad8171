// SPDX-License-Identifier: MIT
#include "platform/macos/MenuBarItem.h"

#include "platform/macos/Action.h"
#include "platform/macos/Menu.h"
#include "platform/macos/NSText.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace fadeloom {
namespace {

bool asksForMenu(NSEvent* event)
{
    return event.type == NSEventTypeRightMouseUp || (event.modifierFlags & NSEventModifierFlagControl) != 0;
}

}  // namespace

/// One place in the menu bar.
class MenuBarItem::Shown {
public:
    Shown(NSString* name, std::function<void()> clicked)
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
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    ~Shown() { [NSStatusBar.systemStatusBar removeStatusItem:item_]; }

    [[nodiscard]] NSStatusBarButton* button() const { return item_.button; }

    /// Returns when the menu has closed. With a menu of its own the item would open it on every click.
    void open(NSMenu* menu)
    {
        item_.menu = menu;
        [item_.button performClick:nil];
        item_.menu = nil;
    }

private:
    NSStatusItem* const item_;
    FadeloomAction* const action_;
};

MenuBarItem::MenuBarItem() = default;
MenuBarItem::~MenuBarItem() = default;

void MenuBarItem::show(const std::string& name)
{
    @autoreleasepool {
        shown_ = std::make_unique<Shown>(nsText(name), [this] { clicked(); });
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
        if (!asksForMenu(NSApp.currentEvent))
            return clicked_();
        menuOpens_();
        shown_->open(nsMenu(buildMenu_()));
    }
}

}  // namespace fadeloom
