// SPDX-License-Identifier: MIT
// What we use of the menu bar, declared by us.
#pragma once

#include <AppKit/NSEvent.h>
#include <AppKit/NSImage.h>
#include <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

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

NS_ASSUME_NONNULL_END
