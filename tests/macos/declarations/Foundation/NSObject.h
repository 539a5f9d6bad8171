// SPDX-License-Identifier: MIT
// The root of all classes, declared by us.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#if __LP64__ || defined(__x86_64__)
typedef long NSInteger;
typedef unsigned long NSUInteger;
#endif

#if __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr

#define NS_ENUM(type, name)                                                                                  \
    enum name : type name;                                                                                   \
    enum name : type
#define NS_OPTIONS(type, name)                                                                               \
    type name;                                                                                               \
    enum : type
#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")

@class NSDictionary;
@class NSString;

NS_ASSUME_NONNULL_BEGIN

@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
- (BOOL)isKindOfClass:(Class)type;
- (BOOL)respondsToSelector:(SEL)selector;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
+ (instancetype)alloc;
+ (instancetype)new;
+ (Class)class;
- (instancetype)init;
- (void)dealloc;
- (id)copy;
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSUInteger)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath;
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary*)change
                       context:(nullable void*)context;
@end

NS_ASSUME_NONNULL_END
