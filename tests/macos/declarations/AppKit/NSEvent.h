// SPDX-License-Identifier: MIT
// What we use of events, declared by us.
#pragma once

#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSEventType) {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeRightMouseDown = 3,
    NSEventTypeRightMouseUp = 4,
    NSEventTypeKeyDown = 10,
    NSEventTypeOtherMouseDown = 25,
    NSEventTypeOtherMouseUp = 26,
    NSEventTypeGesture = 29
};
typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseUp = 1ULL << 2,
    NSEventMaskRightMouseUp = 1ULL << 4
};
typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) {
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19
};

@interface NSEvent : NSObject
@property (class, readonly) NSEventModifierFlags modifierFlags;
@property (class, readonly) NSPoint mouseLocation;
@property (readonly) NSEventType type;
@property (readonly) NSEventModifierFlags modifierFlags;
@end

NS_ASSUME_NONNULL_END
