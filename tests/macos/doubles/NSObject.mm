// SPDX-License-Identifier: MIT
// The root class. Compiled without ARC, because it implements reference counting.
#include "tests/macos/doubles/RuntimeClasses.h"

#import <Foundation/NSObject.h>

using namespace doubles;

extern "C" {
bool objc_opt_isKindOfClass(const ObjectData* object, const ClassData* type);
bool objc_opt_respondsToSelector(const ObjectData* object, const char* selector);
}

@implementation NSObject

+ (instancetype)alloc
{
    return reinterpret_cast<id>(makeObject(reinterpret_cast<const ClassData*>(self)));
}
+ (instancetype)new
{
    return [[self alloc] init];
}
+ (Class)class
{
    return self;
}
- (instancetype)init
{
    return self;
}
- (void)dealloc
{
    disposeOf(reinterpret_cast<ObjectData*>(self));
}
- (id)copy
{
    return reinterpret_cast<id>(objc_retain(reinterpret_cast<ObjectData*>(self)));
}
- (BOOL)isEqual:(id)object
{
    return self == object;
}
- (BOOL)isKindOfClass:(Class)type
{
    return objc_opt_isKindOfClass(
        reinterpret_cast<const ObjectData*>(self), reinterpret_cast<const ClassData*>(type));
}
- (BOOL)respondsToSelector:(SEL)selector
{
    return objc_opt_respondsToSelector(
        reinterpret_cast<const ObjectData*>(self), reinterpret_cast<const char*>(selector));
}
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSUInteger)options
            context:(void*)context
{
    (void)observer, (void)keyPath, (void)options, (void)context;
}
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath
{
    (void)observer, (void)keyPath;
}
- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary*)change
                       context:(void*)context
{
    (void)keyPath, (void)object, (void)change, (void)context;
}

@end
