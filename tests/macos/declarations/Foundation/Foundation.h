// SPDX-License-Identifier: MIT
// What we use of Foundation, declared by us.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <Foundation/NSObject.h>
#include <dispatch/dispatch.h>

typedef double NSTimeInterval;

struct CGPoint {
    double x, y;
};
struct CGSize {
    double width, height;
};
struct CGRect {
    struct CGPoint origin;
    struct CGSize size;
};
typedef struct CGPoint NSPoint;
typedef struct CGSize NSSize;
typedef struct CGRect NSRect;
typedef struct {
    NSUInteger location, length;
} NSRange;

static inline NSSize NSMakeSize(double width, double height)
{
    return (NSSize){width, height};
}
static inline NSRect NSMakeRect(double x, double y, double width, double height)
{
    return (NSRect){{x, y}, {width, height}};
}
static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length)
{
    return (NSRange){location, length};
}

NS_ASSUME_NONNULL_BEGIN

extern const NSRect NSZeroRect;
#ifdef __cplusplus
extern "C"
#endif
    BOOL
    NSPointInRect(NSPoint point, NSRect rectangle);

typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@interface NSString : NSObject
+ (nullable instancetype)stringWithUTF8String:(const char*)bytes;
@property (readonly) NSUInteger length;
@property (readonly, nullable) const char* UTF8String __attribute__((objc_returns_inner_pointer));
- (BOOL)isEqualToString:(NSString*)other;
- (NSString*)stringByReplacingOccurrencesOfString:(NSString*)target withString:(NSString*)replacement;
@end

@interface NSNumber : NSObject
+ (NSNumber*)numberWithUnsignedInt:(unsigned int)value;
@property (readonly) unsigned int unsignedIntValue;
@property (readonly) BOOL boolValue;
@end

@interface NSArray<__covariant Element> : NSObject
+ (instancetype)array;
+ (instancetype)arrayWithObjects:(const Element _Nonnull __unsafe_unretained[_Nullable])objects
                           count:(NSUInteger)count;
@property (readonly) NSUInteger count;
@property (readonly, nullable) Element firstObject;
- (Element)objectAtIndexedSubscript:(NSUInteger)index;
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)count;
@end

@interface NSMutableArray<Element> : NSArray <Element>
- (void)addObject:(Element)object;
@end

@interface NSDictionary<__covariant Key, __covariant Value> : NSObject
+ (instancetype)dictionaryWithObjects:(const Value _Nonnull __unsafe_unretained[_Nullable])objects
                              forKeys:(const Key _Nonnull __unsafe_unretained[_Nullable])keys
                                count:(NSUInteger)count;
@property (readonly) NSUInteger count;
- (nullable Value)objectForKeyedSubscript:(Key)key;
@end

@interface NSURL : NSObject
+ (NSURL*)fileURLWithPath:(NSString*)path;
+ (nullable instancetype)URLWithString:(NSString*)text;
@property (readonly, nullable, copy) NSString* path;
@property (readonly, nullable, copy) NSString* absoluteString;
@end

@interface NSUUID : NSObject
- (nullable instancetype)initWithUUIDString:(NSString*)text;
@property (readonly, copy) NSString* UUIDString;
@end

@interface NSDate : NSObject
+ (instancetype)dateWithTimeIntervalSince1970:(NSTimeInterval)seconds;
@property (readonly) NSTimeInterval timeIntervalSinceReferenceDate;
@end

@interface NSTimeZone : NSObject
@property (class, readonly, copy) NSTimeZone* localTimeZone;
- (NSInteger)secondsFromGMTForDate:(NSDate*)date;
@end

@interface NSProcessInfo : NSObject
@property (class, readonly, strong) NSProcessInfo* processInfo;
@property (readonly) NSTimeInterval systemUptime;
@end

@interface NSData : NSObject
- (BOOL)writeToURL:(NSURL*)location atomically:(BOOL)isAtomic;
@end

@interface NSError : NSObject
@property (readonly, copy) NSString* localizedDescription;
@end

typedef NSString* NSNotificationName;

@interface NSNotification : NSObject
@property (readonly, copy) NSNotificationName name;
@end

@class NSOperationQueue;

@interface NSNotificationCenter : NSObject
@property (class, readonly, strong) NSNotificationCenter* defaultCenter;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)object
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
- (void)removeObserver:(id)observer;
@end

@interface NSDistributedNotificationCenter : NSNotificationCenter
@property (class, readonly, strong) NSDistributedNotificationCenter* defaultCenter;
- (void)postNotificationName:(NSNotificationName)name
                      object:(nullable NSString*)object
                    userInfo:(nullable NSDictionary*)userInfo
          deliverImmediately:(BOOL)isAtOnce;
@end

@interface NSBundle : NSObject
@property (class, readonly, strong) NSBundle* mainBundle;
+ (nullable instancetype)bundleWithURL:(NSURL*)location;
@property (readonly, nullable, copy) NSString* bundleIdentifier;
@property (readonly, copy) NSURL* bundleURL;
@end

@interface NSUserDefaults : NSObject
@property (class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable NSDictionary<NSString*, id>*)persistentDomainForName:(NSString*)domain;
- (void)setObject:(nullable id)value forKey:(NSString*)key;
- (void)removeObjectForKey:(NSString*)key;
@end

typedef NS_ENUM(NSUInteger, NSSearchPathDirectory) {
    NSCachesDirectory = 13,
    NSApplicationSupportDirectory = 14,
    NSMusicDirectory = 18
};
typedef NS_OPTIONS(NSUInteger, NSSearchPathDomainMask) { NSUserDomainMask = 1 };

@interface NSFileManager : NSObject
@property (class, readonly, strong) NSFileManager* defaultManager;
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory
                           inDomains:(NSSearchPathDomainMask)domains;
- (NSString*)displayNameAtPath:(NSString*)path;
@end

NS_ASSUME_NONNULL_END
