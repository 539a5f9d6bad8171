// SPDX-License-Identifier: MIT
// What we use of views, declared by us.
#pragma once

#include <AppKit/AppKitDefines.h>
#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSRectEdge) {
    NSRectEdgeMinX = 0,
    NSRectEdgeMinY = 1,
    NSRectEdgeMaxX = 2,
    NSRectEdgeMaxY = 3
};

@class NSView;

typedef NSString* NSAccessibilityActionName;
APPKIT_EXTERN NSAccessibilityActionName const NSAccessibilityShowMenuAction;
APPKIT_EXTERN NSString* _Nullable NSAccessibilityActionDescription(NSAccessibilityActionName action);

API_AVAILABLE(macos(10.13))
@interface NSAccessibilityCustomAction : NSObject
- (instancetype)initWithName:(NSString*)name handler:(BOOL (^_Nullable)(void))handler;
@property (copy) NSString* name;
@property (nullable, copy) BOOL (^handler)(void);
@end

@interface NSWindow : NSObject
@property (readonly) NSRect frame;
- (void)makeKeyWindow;
- (BOOL)makeFirstResponder:(nullable NSView*)responder;
@end

@interface NSView : NSObject
@property (copy) NSArray<__kindof NSView*>* subviews;
- (instancetype)initWithFrame:(NSRect)frame;
@property NSRect bounds;
@property (readonly, getter=isFlipped) BOOL flipped;
@property (nullable, readonly, unsafe_unretained) NSWindow* window;
@property (nullable, copy) NSString* toolTip;
@property (nullable, copy) NSString* accessibilityLabel;
@property (nullable, copy)
    NSArray<NSAccessibilityCustomAction*>* accessibilityCustomActions API_AVAILABLE(macos(10.13));
@end

@interface NSViewController : NSObject
- (instancetype)initWithNibName:(nullable NSString*)name bundle:(nullable NSBundle*)bundle;
@property (strong) NSView* view;
@end

NS_ASSUME_NONNULL_END
