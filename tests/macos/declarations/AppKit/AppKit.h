// SPDX-License-Identifier: MIT
// What we use of AppKit, declared by us.
#pragma once

#include <Foundation/Foundation.h>
#include <sys/types.h>

#ifdef __cplusplus
#define APPKIT_EXTERN extern "C"
#else
#define APPKIT_EXTERN extern
#endif

@class UTType;
typedef struct CGImage* CGImageRef;

NS_ASSUME_NONNULL_BEGIN

// Texts with attributes.

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

typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentRight = 1,
    NSTextAlignmentCenter = 2
};

@interface NSMutableParagraphStyle : NSObject
@property NSTextAlignment alignment;
@end

// Pictures.

@interface NSImage : NSObject
+ (nullable NSImage*)imageNamed:(NSString*)name;
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect*)rectangle
                                      context:(nullable id)context
                                        hints:(nullable NSDictionary<NSString*, id>*)hints;
@end

typedef NS_ENUM(NSUInteger, NSBitmapImageFileType) { NSBitmapImageFileTypePNG = 4 };

@interface NSBitmapImageRep : NSObject
- (instancetype)initWithCGImage:(CGImageRef)image;
- (nullable NSData*)representationUsingType:(NSBitmapImageFileType)type
                                 properties:(NSDictionary<NSString*, id>*)properties;
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

typedef NS_ENUM(NSUInteger, NSEventType) { NSEventTypeLeftMouseUp = 2, NSEventTypeRightMouseUp = 4 };
typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseUp = 1ULL << 2,
    NSEventMaskRightMouseUp = 1ULL << 4
};
typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) { NSEventModifierFlagControl = 1 << 18 };

@interface NSEvent : NSObject
@property (readonly) NSEventType type;
@property (readonly) NSEventModifierFlags modifierFlags;
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
@end

@interface NSWorkspace : NSObject
@property (class, readonly, strong) NSWorkspace* sharedWorkspace;
@property (readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
- (BOOL)openURL:(NSURL*)location;
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)files;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
- (void)openApplicationAtURL:(NSURL*)location
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable, NSError* _Nullable))answered
    API_AVAILABLE(macos(10.15));
@end

// Views.

typedef NS_ENUM(NSUInteger, NSRectEdge) {
    NSRectEdgeMinX = 0,
    NSRectEdgeMinY = 1,
    NSRectEdgeMaxX = 2,
    NSRectEdgeMaxY = 3
};

@class NSView;

@interface NSWindow : NSObject
- (void)makeKeyWindow;
- (BOOL)makeFirstResponder:(nullable NSView*)responder;
@end

@interface NSView : NSObject
@property (copy) NSArray<__kindof NSView*>* subviews;
- (instancetype)initWithFrame:(NSRect)frame;
@property NSRect bounds;
@property (nullable, readonly, unsafe_unretained) NSWindow* window;
@property (nullable, copy) NSString* toolTip;
@property (nullable, copy) NSString* accessibilityLabel;
@end

@interface NSViewController : NSObject
- (instancetype)initWithNibName:(nullable NSString*)name bundle:(nullable NSBundle*)bundle;
@property (strong) NSView* view;
@end

@class NSPopover;
@protocol NSPopoverDelegate <NSObject>
@optional
- (void)popoverWillShow:(NSNotification*)notification;
- (void)popoverDidClose:(NSNotification*)notification;
@end

typedef NS_ENUM(NSInteger, NSPopoverBehavior) {
    NSPopoverBehaviorApplicationDefined = 0,
    NSPopoverBehaviorTransient = 1
};

@interface NSPopover : NSObject
@property (nullable, weak) id<NSPopoverDelegate> delegate;
@property BOOL animates;
@property NSPopoverBehavior behavior;
@property NSSize contentSize;
@property (nullable, strong) NSViewController* contentViewController;
@property (readonly, getter=isShown) BOOL shown;
- (void)showRelativeToRect:(NSRect)rectangle ofView:(NSView*)view preferredEdge:(NSRectEdge)edge;
- (void)performClose:(nullable id)sender;
- (void)close;
@end

// The menu bar.

typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;

@interface NSMenuItem : NSObject
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)title action:(nullable SEL)action keyEquivalent:(NSString*)key;
@property (copy) NSString* title;
@property (copy) NSString* keyEquivalent;
@property (nullable) SEL action;
@property (nullable, weak) id target;
@property NSControlStateValue state;
@property (nullable, strong) id representedObject;
@property (readonly, getter=isSeparatorItem) BOOL separatorItem;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString*)title;
- (void)addItem:(NSMenuItem*)item;
@property (readonly, copy) NSArray<NSMenuItem*>* itemArray;
@end

@interface NSStatusBarButton : NSView
@property (nullable, strong) NSImage* image;
@property (nullable, weak) id target;
@property (nullable) SEL action;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (void)performClick:(nullable id)sender;
@end

static const double NSSquareStatusItemLength = -2.0;

@interface NSStatusItem : NSObject
@property (nullable, readonly, strong) NSStatusBarButton* button;
@property (nullable, strong) NSMenu* menu;
@end

@interface NSStatusBar : NSObject
@property (class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(double)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

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
