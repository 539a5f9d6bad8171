// SPDX-License-Identifier: MIT
// A double of the desktop: applications, defaults, the login item, the menu bar and its popover, dialogs.
//
// Tests set the state of the world and read what it was asked to show.
#pragma once

#import <AppKit/AppKit.h>
#import <ServiceManagement/ServiceManagement.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

@interface NSRunningApplication ()
@property (getter=isTerminated) BOOL terminated;
@property NSApplicationActivationPolicy activationPolicy;
@property (nullable, copy) NSString* localizedName;
@property (nullable, copy) NSString* bundleIdentifier;
@property (nullable, copy) NSURL* bundleURL;
@property pid_t processIdentifier;
@property (nullable, copy) NSDate* launchDate;
@property (nullable, strong) NSImage* icon;
@end

@interface NSEvent ()
@property NSEventType type;
@property NSEventModifierFlags modifierFlags;
@end

@interface NSApplication ()
@property (nullable, strong) NSEvent* currentEvent;
@property (nullable, strong) NSAppearance* systemAppearance;
@property (nullable, strong) NSDictionary* aboutOptions;
@property BOOL isActive;
@end

@interface NSNotificationCenter ()
+ (NSNotificationCenter*)centerNamed:(const char*)name;
@end

@interface NSStatusBar ()
@property (readonly) NSStatusItem* onlyItem;
@end

@interface NSImage ()
/// The file it was loaded for.
@property (readonly) NSString* drawnName;
@end

@interface NSStatusBarButton ()
@property NSEventMask mask;
@property (unsafe_unretained) NSStatusItem* owner;
/// Clicks like a user: events that are listened for reach the target.
- (void)click:(NSEventType)type modifiers:(NSEventModifierFlags)modifiers;
/// Clicks like a user of gestures: the current event is not a mouse event.
- (void)clickByGesture:(NSEventModifierFlags)heldModifiers;
@end

@interface NSPopover ()
@property (getter=isShown) BOOL shown;
@property NSRectEdge edge;
@property NSRect place;
@property (unsafe_unretained) NSView* anchor;
/// Presses the mouse outside of it, like a user.
- (void)pressElsewhere;
@end

@interface NSWindow ()
@property NSRect frame;
@end

@interface NSOpenPanel ()
@property (copy) NSArray<NSURL*>* URLs;
@end

@interface NSMenuItem ()
@property (getter=isSeparatorItem) BOOL separatorItem;
@end

@interface NSAttributedString ()
/// Each run: its text, and the names and values of its attributes.
@property (readonly) std::vector<std::pair<std::string, NSDictionary*>> runs;
@end

namespace doubles {

struct Desktop {
    NSMutableArray<NSRunningApplication*>* applications = [NSMutableArray array];
    std::map<std::string, std::string> installed{};  // Bundle locations by bundle identifier.
    std::map<std::string, std::string> displayNames{};  // By path.
    NSString* ownBundle = @"com.fadeloom.app";
    NSDictionary* defaults = [NSDictionary dictionaryWithObjects:nil forKeys:nil count:0];
    SMAppServiceStatus loginItem = SMAppServiceStatusNotRegistered;
    NSError* loginItemError = nil;
    bool isNewInstanceRefused = false;
    long secondsFromGMT = 3600;
    std::string folders = "/Users/someone";  // The user's home; empty: without the folders in it.

    // The user's current input.
    NSEventModifierFlags heldModifiers = 0;
    NSPoint mouse{-1, -1};
    NSTimeInterval uptime = 1000;

    struct NotificationObserver {
        std::string center;
        NSNotificationName name;
        void (^block)(NSNotification*);
        id token;
    };
    std::vector<NotificationObserver> observers{};

    // What is currently shown.
    std::function<void(NSOpenPanel*, std::function<void(NSModalResponse)>)> whenPanelOpens =
        [](NSOpenPanel*, const auto&) { };
    NSModalResponse alertAnswer = NSAlertFirstButtonReturn;
    /// Called while a menu is open; what it chooses runs after the menu has closed.
    std::function<void(NSMenu*)> whenMenuOpens = [](NSMenu*) { };
};

/// The desktop of the running test, between these two. The application object exists as long.
Desktop& desktop();
Desktop& beginDesktop();
void endDesktop();
NSRunningApplication* launch(const std::string& name, pid_t pid, const std::string& bundle);
/// Posts to the observers of this center: "default", or "workspace".
void post(const std::string& center, NSNotificationName name);
/// The most recently created popover.
NSPopover* lastPopover();
/// Activates a menu item.
void choose(NSMenuItem* item);
std::vector<std::string> titles(NSMenu* menu);

}  // namespace doubles
