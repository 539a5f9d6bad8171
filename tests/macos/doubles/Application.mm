// SPDX-License-Identifier: MIT
// The application, its appearance, its events.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

using namespace doubles;

NSAppearanceName const NSAppearanceNameAqua = @"aqua";
NSAppearanceName const NSAppearanceNameDarkAqua = @"dark aqua";
NSAboutPanelOptionKey const NSAboutPanelOptionCredits = @"credits";
__kindof NSApplication* NSApp = nil;

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

+ (NSEventModifierFlags)modifierFlags
{
    return desktop().heldModifiers;
}
+ (NSPoint)mouseLocation
{
    return desktop().mouse;
}

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
