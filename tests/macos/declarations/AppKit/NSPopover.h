// SPDX-License-Identifier: MIT
// What we use of popovers, declared by us.
#pragma once

#include <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@class NSPopover;
@protocol NSPopoverDelegate <NSObject>
@optional
- (void)popoverWillShow:(NSNotification*)notification;
- (void)popoverDidShow:(NSNotification*)notification;
- (void)popoverWillClose:(NSNotification*)notification;
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

NS_ASSUME_NONNULL_END
