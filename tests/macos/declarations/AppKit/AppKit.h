// SPDX-License-Identifier: MIT
// What we use of AppKit, declared by us.
#pragma once

#include <AppKit/AppKitDefines.h>
#include <AppKit/NSEvent.h>
#include <AppKit/NSImage.h>
#include <AppKit/NSPopover.h>
#include <AppKit/NSStatusBar.h>
#include <AppKit/NSView.h>
#include <Foundation/Foundation.h>
#include <sys/types.h>

@class UTType;

NS_ASSUME_NONNULL_BEGIN

// Attributed strings.

typedef NSString* NSAttributedStringKey;
APPKIT_EXTERN NSAttributedStringKey const NSFontAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSForegroundColorAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSLinkAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSParagraphStyleAttributeName;

@interface NSAttributedString : NSObject
- (instancetype)initWithString:(NSString*)text
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
@property (readonly, copy) NSString* string;
@property (readonly) NSUInteger length;
@end

@interface NSMutableAttributedString : NSAttributedString
- (void)appendAttributedString:(NSAttributedString*)text;
- (void)addAttribute:(NSAttributedStringKey)name value:(id)value range:(NSRange)range;
@end

@interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(double)size;
@property (readonly) double pointSize;
@end

@interface NSColor : NSObject
@property (class, readonly, strong) NSColor* labelColor;
@end

// Only on Apple silicon.
typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
#if defined(__arm64__)
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
#else
    NSTextAlignmentRight = 1,
    NSTextAlignmentCenter = 2,
#endif
};

@interface NSMutableParagraphStyle : NSObject
@property NSTextAlignment alignment;
@end

// The application.

typedef NSString* NSAppearanceName;
APPKIT_EXTERN NSAppearanceName const NSAppearanceNameAqua;
APPKIT_EXTERN NSAppearanceName const NSAppearanceNameDarkAqua;

@interface NSAppearance : NSObject
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
@property (readonly, copy) NSAppearanceName name;
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)names;
@end

typedef NSString* NSAboutPanelOptionKey;
APPKIT_EXTERN NSAboutPanelOptionKey const NSAboutPanelOptionCredits;

@interface NSApplication : NSObject
@property (nullable, strong) NSAppearance* appearance;
@property (readonly, strong) NSAppearance* effectiveAppearance;
@property (nullable, readonly, strong) NSEvent* currentEvent;
- (void)activateIgnoringOtherApps:(BOOL)isIgnoring
    __attribute__((availability(macos, introduced = 10.0, deprecated = 14.0)));
- (void)orderFrontStandardAboutPanelWithOptions:(NSDictionary<NSAboutPanelOptionKey, id>*)options;
@end

APPKIT_EXTERN __kindof NSApplication* _Null_unspecified NSApp;
APPKIT_EXTERN NSNotificationName const NSApplicationDidBecomeActiveNotification;

// Running applications.

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2
};

@interface NSRunningApplication : NSObject
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid;
@property (readonly, getter=isTerminated) BOOL terminated;
@property (readonly) NSApplicationActivationPolicy activationPolicy;
@property (nullable, readonly, copy) NSString* localizedName;
@property (nullable, readonly, copy) NSString* bundleIdentifier;
@property (nullable, readonly, copy) NSURL* bundleURL;
@property (readonly) pid_t processIdentifier;
@property (nullable, readonly, copy) NSDate* launchDate;
@property (nullable, readonly, strong) NSImage* icon;
@end

API_AVAILABLE(macos(10.15))
@interface NSWorkspaceOpenConfiguration : NSObject
+ (instancetype)configuration;
@property BOOL createsNewApplicationInstance;
@property (copy) NSDictionary<NSString*, NSString*>* environment;
@end

@interface NSWorkspace : NSObject
@property (class, readonly, strong) NSWorkspace* sharedWorkspace;
@property (readonly, strong) NSNotificationCenter* notificationCenter;
@property (readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
- (BOOL)openURL:(NSURL*)location;
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)files;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
- (void)openApplicationAtURL:(NSURL*)location
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable, NSError* _Nullable))answered
    API_AVAILABLE(macos(10.15));
@end

APPKIT_EXTERN NSNotificationName const NSWorkspaceWillPowerOffNotification;

// Panels.

typedef NSInteger NSModalResponse;
static const NSModalResponse NSModalResponseOK = 1;
static const NSModalResponse NSModalResponseCancel = 0;
static const NSModalResponse NSModalResponseStop = -1000;
static const NSModalResponse NSAlertFirstButtonReturn = 1000;

@interface NSOpenPanel : NSObject
+ (NSOpenPanel*)openPanel;
@property BOOL canChooseDirectories;
@property BOOL canChooseFiles;
@property BOOL canCreateDirectories;
@property BOOL allowsMultipleSelection;
@property (null_resettable, copy) NSString* prompt;
@property (nullable, copy) NSURL* directoryURL;
@property (copy) NSArray<UTType*>* allowedContentTypes API_AVAILABLE(macos(11.0));
@property (readonly, copy) NSArray<NSURL*>* URLs;
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse result))answered;
@end

@interface NSAlert : NSObject
@property (copy) NSString* messageText;
@property (copy) NSString* informativeText;
- (id)addButtonWithTitle:(NSString*)title;
- (NSModalResponse)runModal;
@end

NS_ASSUME_NONNULL_END
