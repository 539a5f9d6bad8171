// SPDX-License-Identifier: MIT
// The application, the menu bar, the popover, menus and dialogs.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

#include <utility>

using namespace doubles;

NSAttributedStringKey const NSFontAttributeName = @"font";
NSAttributedStringKey const NSForegroundColorAttributeName = @"colour";
NSAttributedStringKey const NSLinkAttributeName = @"link";
NSAttributedStringKey const NSParagraphStyleAttributeName = @"paragraph";
NSAppearanceName const NSAppearanceNameAqua = @"aqua";
NSAppearanceName const NSAppearanceNameDarkAqua = @"dark aqua";
NSAboutPanelOptionKey const NSAboutPanelOptionCredits = @"credits";
UTType* const UTTypeApplicationBundle = [[UTType alloc] init];
__kindof NSApplication* NSApp = nil;

@implementation UTType

- (NSString*)identifier
{
    return @"com.apple.application-bundle";
}

@end

@implementation NSAttributedString {
@protected
    std::vector<std::pair<std::string, NSDictionary*>> runs_;
}

- (instancetype)initWithString:(NSString*)text attributes:(NSDictionary*)attributes
{
    if ((self = [super init]))
        runs_.emplace_back(text.UTF8String, attributes);
    return self;
}
- (std::vector<std::pair<std::string, NSDictionary*>>)runs
{
    return runs_;
}
- (NSString*)string
{
    std::string whole;
    for (const auto& run : runs_)
        whole += run.first;
    return [NSString stringWithUTF8String:whole.c_str()];
}
- (NSUInteger)length
{
    return self.string.length;
}

@end

@implementation NSMutableAttributedString

- (void)appendAttributedString:(NSAttributedString*)text
{
    for (const auto& run : text.runs)
        runs_.push_back(run);
}
- (void)addAttribute:(NSAttributedStringKey)name value:(id)value range:(NSRange)range
{
    if (range.location != 0 || range.length != self.length)
        crash("only whole texts are styled here");
    note(std::string("style all with ") + name.UTF8String + ' '
        + std::to_string(static_cast<NSMutableParagraphStyle*>(value).alignment));
}

@end

@implementation NSMutableParagraphStyle
@end

@implementation NSFont {
    double size_;
}

+ (NSFont*)systemFontOfSize:(double)size
{
    NSFont* made = [[NSFont alloc] init];
    made->size_ = size;
    return made;
}
- (double)pointSize
{
    return size_;
}

@end

@implementation NSColor

+ (NSColor*)labelColor
{
    return [[NSColor alloc] init];
}

@end

@implementation NSAppearance {
    NSString* name_;
}

+ (NSAppearance*)appearanceNamed:(NSAppearanceName)name
{
    NSAppearance* made = [[NSAppearance alloc] init];
    made->name_ = name;
    return made;
}
- (NSAppearanceName)name
{
    return name_;
}
- (NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)names
{
    for (NSString* each in names)
        if ([each isEqualToString:name_])
            return each;
    return nil;
}

@end

@implementation NSEvent
@end

@implementation NSApplication {
    NSMutableArray* observers_;
}

@synthesize appearance = appearance_;
@synthesize systemAppearance = systemAppearance_;

- (NSAppearance*)effectiveAppearance
{
    return appearance_ != nil ? appearance_ : systemAppearance_;
}
- (void)setAppearance:(NSAppearance*)appearance
{
    appearance_ = appearance;
    note(std::string("appearance ") + (appearance == nil ? "of the system" : appearance.name.UTF8String));
    [self tellObservers];
}
- (void)setSystemAppearance:(NSAppearance*)appearance
{
    systemAppearance_ = appearance;
    [self tellObservers];
}
- (void)tellObservers
{
    for (id each in [observers_ copy])
        [each observeValueForKeyPath:@"effectiveAppearance" ofObject:self change:nil context:nullptr];
}
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSUInteger)options
            context:(void*)context
{
    (void)options, (void)context;
    note(std::string("observe ") + keyPath.UTF8String);
    observers_ = [NSMutableArray array];
    [observers_ addObject:observer];
}
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath
{
    if (observers_ == nil || observers_.firstObject != observer)
        crash("an observer that is none was removed");
    note(std::string("observe no longer ") + keyPath.UTF8String);
    observers_ = nil;
}
- (void)activateIgnoringOtherApps:(BOOL)isIgnoring
{
    note(isIgnoring ? "activate" : "activate if others let it");
    self.isActive = YES;
}
- (void)orderFrontStandardAboutPanelWithOptions:(NSDictionary*)options
{
    note("about");
    self.aboutOptions = options;
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

@end

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
- (void)performClick:(id)sender
{
    // With a menu, a click opens that and reaches no target.
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

/// The bar keeps what it shows, as whoever asked for it may not.
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

@implementation NSOpenPanel

@synthesize prompt = prompt_;

+ (NSOpenPanel*)openPanel
{
    return [[NSOpenPanel alloc] init];
}
- (void)setPrompt:(NSString*)prompt
{
    prompt_ = prompt;
}
- (NSString*)prompt
{
    return prompt_;
}
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse))answered
{
    note("panel opens");
    // It stays until it is answered, whoever else lets go of it.
    void (^kept)(NSModalResponse) = answered;
    desktop().whenPanelOpens(self, [kept](NSModalResponse response) { kept(response); });
}

@end

@implementation NSAlert

- (id)addButtonWithTitle:(NSString*)title
{
    note(std::string("button ") + title.UTF8String);
    return nil;
}
- (NSModalResponse)runModal
{
    note(std::string("alert ") + self.messageText.UTF8String + ": " + self.informativeText.UTF8String);
    return desktop().alertAnswer;
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
