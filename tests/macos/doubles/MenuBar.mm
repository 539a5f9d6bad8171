// SPDX-License-Identifier: MIT
// Views, menus, and menu bar items.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

using namespace doubles;

NSAccessibilityActionName const NSAccessibilityShowMenuAction = @"AXShowMenu";

NSString* NSAccessibilityActionDescription(NSAccessibilityActionName action)
{
    return action == NSAccessibilityShowMenuAction ? @"Menü einblenden" : nil;
}

BOOL NSPointInRect(NSPoint point, NSRect rectangle)
{
    return point.x >= rectangle.origin.x && point.x < rectangle.origin.x + rectangle.size.width
        && point.y >= rectangle.origin.y && point.y < rectangle.origin.y + rectangle.size.height;
}

@implementation NSAccessibilityCustomAction

- (instancetype)initWithName:(NSString*)name handler:(BOOL (^)(void))handler
{
    if ((self = [super init])) {
        self.name = name;
        self.handler = handler;
    }
    return self;
}

@end

@implementation NSWindow

- (void)makeKeyWindow
{
    note("make key");
}
- (BOOL)makeFirstResponder:(NSView*)responder
{
    note(responder == nil ? "keys to nobody" : "keys to the content");
    return YES;
}

@end

@implementation NSView {
    NSWindow* window_;
}

- (instancetype)initWithFrame:(NSRect)frame
{
    if ((self = [super init])) {
        self.bounds = frame;
        window_ = [[NSWindow alloc] init];
    }
    return self;
}
- (NSWindow*)window
{
    return window_;
}
- (BOOL)isFlipped
{
    return NO;
}

@end

@implementation NSMenuItem

+ (NSMenuItem*)separatorItem
{
    NSMenuItem* made = [[NSMenuItem alloc] initWithTitle:@"" action:nullptr keyEquivalent:@""];
    made.separatorItem = YES;
    return made;
}
- (instancetype)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key
{
    if ((self = [super init])) {
        self.title = title;
        self.action = action;
        self.keyEquivalent = key;
    }
    return self;
}

@end

@implementation NSMenu {
    NSMutableArray<NSMenuItem*>* items_;
}

- (instancetype)initWithTitle:(NSString*)title
{
    (void)title;
    if ((self = [super init]))
        items_ = [NSMutableArray array];
    return self;
}
- (void)addItem:(NSMenuItem*)item
{
    [items_ addObject:item];
}
- (NSArray<NSMenuItem*>*)itemArray
{
    return [items_ copy];
}

@end

@interface NSObject (Act)
- (void)act:(id)sender;
@end

@implementation NSStatusBarButton

- (NSInteger)sendActionOn:(NSEventMask)mask
{
    self.mask = mask;
    return 0;
}
- (void)click:(NSEventType)type modifiers:(NSEventModifierFlags)modifiers
{
    if ((self.mask & 1ULL << type) == 0)
        return;
    NSEvent* event = [[NSEvent alloc] init];
    event.type = type;
    event.modifierFlags = modifiers;
    static_cast<NSApplication*>(NSApp).currentEvent = event;
    [self performClick:nil];
    static_cast<NSApplication*>(NSApp).currentEvent = nil;
}
- (void)clickByGesture:(NSEventModifierFlags)heldModifiers
{
    desktop().heldModifiers = heldModifiers;
    NSEvent* event = [[NSEvent alloc] init];
    event.type = NSEventTypeGesture;
    static_cast<NSApplication*>(NSApp).currentEvent = event;
    [self performClick:nil];
    static_cast<NSApplication*>(NSApp).currentEvent = nil;
    desktop().heldModifiers = 0;
}
- (void)performClick:(id)sender
{
    // With a menu, a click opens that and does not reach the target.
    if (NSMenu* menu = self.owner.menu; menu != nil) {
        note("menu opens");
        desktop().whenMenuOpens(menu);
    } else {
        [self.target act:sender];
    }
}

@end

@interface NSStatusItem ()
@property (strong) NSStatusBarButton* button;
@end

@implementation NSStatusItem
@end

namespace {

/// The bar retains its items, because their creators may not.
__unsafe_unretained NSStatusItem* shownItem = nil;

}  // namespace

@implementation NSStatusBar

+ (NSStatusBar*)systemStatusBar
{
    return [[NSStatusBar alloc] init];
}
- (NSStatusItem*)statusItemWithLength:(double)length
{
    note(length == NSSquareStatusItemLength ? "square item" : "item");
    NSStatusItem* item = [[NSStatusItem alloc] init];
    item.button = [[NSStatusBarButton alloc] initWithFrame:NSMakeRect(0, 0, 24, 22)];
    item.button.owner = item;
    item.button.window.frame = NSMakeRect(1000, 900, 24, 22);
    shownItem = item;
    return item;
}
- (void)removeStatusItem:(NSStatusItem*)item
{
    if (item != shownItem)
        crash("an item was removed that is not shown");
    note("item removed");
    shownItem = nil;
}
- (NSStatusItem*)onlyItem
{
    return shownItem;
}

@end

namespace doubles {

void choose(NSMenuItem* item)
{
    [item.target act:item];
}

std::vector<std::string> titles(NSMenu* menu)
{
    std::vector<std::string> titles;
    for (NSMenuItem* each in menu.itemArray)
        titles.emplace_back(each.title.UTF8String);
    return titles;
}

}  // namespace doubles
