// SPDX-License-Identifier: MIT
// Notification centers, and the system uptime.
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"

#include <algorithm>

using namespace doubles;

NSNotificationName const NSApplicationDidBecomeActiveNotification = @"did become active";
NSNotificationName const NSWorkspaceWillPowerOffNotification = @"will power off";

@interface NSNotification ()
@property (copy) NSNotificationName name;
@end

@implementation NSNotification
@end

@implementation NSNotificationCenter {
    std::string name_;
}

+ (NSNotificationCenter*)defaultCenter
{
    return [self centerNamed:"default"];
}
+ (NSNotificationCenter*)centerNamed:(const char*)name
{
    NSNotificationCenter* made = [[self alloc] init];
    made->name_ = name;
    return made;
}
- (id<NSObject>)addObserverForName:(NSNotificationName)name
                            object:(id)object
                             queue:(NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block
{
    (void)object, (void)queue;
    id token = [[NSObject alloc] init];
    desktop().observers.push_back({name_, name, block, token});
    return token;
}
- (void)removeObserver:(id)observer
{
    const auto count =
        std::erase_if(desktop().observers, [&](const auto& each) { return each.token == observer; });
    if (count == 0)
        crash("an observer that is none was removed");
}

@end

@implementation NSDistributedNotificationCenter

+ (NSDistributedNotificationCenter*)defaultCenter
{
    return static_cast<NSDistributedNotificationCenter*>([self centerNamed:"distributed"]);
}
- (void)postNotificationName:(NSNotificationName)name
                      object:(NSString*)object
                    userInfo:(NSDictionary*)userInfo
          deliverImmediately:(BOOL)isAtOnce
{
    (void)object, (void)userInfo;
    note(std::string("post ") + name.UTF8String + (isAtOnce ? " at once" : ""));
    post("distributed", name);
}

@end

@implementation NSProcessInfo

+ (NSProcessInfo*)processInfo
{
    return [[self alloc] init];
}
- (NSTimeInterval)systemUptime
{
    return desktop().uptime;
}

@end

namespace doubles {

void post(const std::string& center, NSNotificationName name)
{
    NSNotification* notification = [[NSNotification alloc] init];
    notification.name = name;
    const auto told = desktop().observers;
    for (const auto& each : told)
        if (each.center == center && [each.name isEqualToString:name])
            each.block(notification);
}

}  // namespace doubles
