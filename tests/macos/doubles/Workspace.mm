// SPDX-License-Identifier: MIT
// Applications, bundles, defaults, folders, the login item.
#include "tests/macos/doubles/Collections.h"
#include "tests/macos/doubles/Desktop.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Values.h"

#include <utility>

using namespace doubles;

@implementation NSRunningApplication

+ (instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid
{
    for (NSRunningApplication* each in desktop().applications)
        if (each.processIdentifier == pid)
            return each;
    return nil;
}

@end

@implementation NSWorkspaceOpenConfiguration

+ (instancetype)configuration
{
    return [[self alloc] init];
}

@end

@implementation NSWorkspace

+ (NSWorkspace*)sharedWorkspace
{
    return [[self alloc] init];
}
- (NSNotificationCenter*)notificationCenter
{
    return [NSNotificationCenter centerNamed:"workspace"];
}
- (NSArray<NSRunningApplication*>*)runningApplications
{
    return [desktop().applications copy];
}
- (BOOL)openURL:(NSURL*)location
{
    note(std::string("open ") + location.absoluteString.UTF8String);
    return YES;
}
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)files
{
    for (NSURL* file in files)
        note(std::string("reveal ") + file.absoluteString.UTF8String);
}
- (NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier
{
    const auto found = desktop().installed.find(bundleIdentifier.UTF8String);
    if (found == desktop().installed.end())
        return nil;
    return [NSURL fileURLWithPath:[NSString stringWithUTF8String:found->second.c_str()]];
}
- (void)openApplicationAtURL:(NSURL*)location
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^)(NSRunningApplication*, NSError*))answered
{
    note(std::string("launch ") + location.path.UTF8String
        + (configuration.createsNewApplicationInstance ? " once more" : "")
        + (configuration.environment == nil ? "" : " with " + described(configuration.environment)));
    // The reply arrives on a system queue.
    static dispatch_queue_t queue = dispatch_queue_create("answers", nil);
    dispatch_async(
        queue, ^{ answered(nil, desktop().isNewInstanceRefused ? errorSaying(@"It did not start.") : nil); });
}

@end

@implementation NSBundle {
    NSString* identifier_;
    NSURL* location_;
}

+ (NSBundle*)mainBundle
{
    NSBundle* made = [[NSBundle alloc] init];
    made->identifier_ = desktop().ownBundle;
    made->location_ = [NSURL fileURLWithPath:@"/Applications/Fadeloom.app/"];
    return made;
}
+ (instancetype)bundleWithURL:(NSURL*)location
{
    for (const auto& [identifier, path] : desktop().installed) {
        if (path != location.path.UTF8String)
            continue;
        NSBundle* made = [[NSBundle alloc] init];
        made->identifier_ = [NSString stringWithUTF8String:identifier.c_str()];
        made->location_ = location;
        return made;
    }
    return nil;
}
- (NSString*)bundleIdentifier
{
    return identifier_;
}
- (NSURL*)bundleURL
{
    return location_;
}

@end

@implementation NSUserDefaults

+ (NSUserDefaults*)standardUserDefaults
{
    return [[self alloc] init];
}
- (NSDictionary*)persistentDomainForName:(NSString*)domain
{
    return [domain isEqualToString:desktop().ownBundle] ? desktop().defaults : nil;
}
- (void)setObject:(id)value forKey:(NSString*)key
{
    [desktop().defaults setEntry:[value copy] forKey:key];
}
- (void)removeObjectForKey:(NSString*)key
{
    [desktop().defaults removeEntryForKey:key];
}

@end

@implementation NSFileManager

+ (NSFileManager*)defaultManager
{
    return [[self alloc] init];
}
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory
                           inDomains:(NSSearchPathDomainMask)domains
{
    if (domains != NSUserDomainMask || desktop().folders.empty())
        return @[];
    const std::string below = directory == NSMusicDirectory ? "/Music/"
        : directory == NSApplicationSupportDirectory        ? "/Library/Application Support/"
                                                            : "/Library/Caches/";
    return @[ [NSURL fileURLWithPath:[NSString stringWithUTF8String:(desktop().folders + below).c_str()]] ];
}
- (NSString*)displayNameAtPath:(NSString*)path
{
    const auto found = desktop().displayNames.find(path.UTF8String);
    return found == desktop().displayNames.end() ? path
                                                 : [NSString stringWithUTF8String:found->second.c_str()];
}

@end

@implementation NSTimeZone

+ (NSTimeZone*)localTimeZone
{
    return [[self alloc] init];
}
- (NSInteger)secondsFromGMTForDate:(NSDate*)date
{
    note("zone at " + std::to_string(static_cast<long>(date.timeIntervalSinceReferenceDate)));
    return desktop().secondsFromGMT;
}

@end

@implementation SMAppService

+ (SMAppService*)mainAppService
{
    return [[self alloc] init];
}
- (SMAppServiceStatus)status
{
    return desktop().loginItem;
}
- (BOOL)registerAndReturnError:(NSError* __autoreleasing*)error
{
    note("register");
    if (desktop().loginItemError != nil) {
        *error = desktop().loginItemError;
        return NO;
    }
    desktop().loginItem = SMAppServiceStatusEnabled;
    return YES;
}
- (BOOL)unregisterAndReturnError:(NSError* __autoreleasing*)error
{
    note("unregister");
    if (desktop().loginItemError != nil) {
        *error = desktop().loginItemError;
        return NO;
    }
    desktop().loginItem = SMAppServiceStatusNotRegistered;
    return YES;
}

@end

namespace doubles {
namespace {

Desktop* current = nullptr;

}  // namespace

Desktop& desktop()
{
    return *current;
}

Desktop& beginDesktop()
{
    current = new Desktop;
    NSApp = [[NSApplication alloc] init];
    static_cast<NSApplication*>(NSApp).systemAppearance = [NSAppearance appearanceNamed:NSAppearanceNameAqua];
    return *current;
}

void endDesktop()
{
    delete std::exchange(current, nullptr);
    NSApp = nil;
}

NSRunningApplication* launch(const std::string& name, pid_t pid, const std::string& bundle)
{
    NSRunningApplication* made = [[NSRunningApplication alloc] init];
    made.localizedName = [NSString stringWithUTF8String:name.c_str()];
    made.processIdentifier = pid;
    made.bundleIdentifier = [NSString stringWithUTF8String:("com.example." + name).c_str()];
    made.bundleURL = [NSURL fileURLWithPath:[NSString stringWithUTF8String:bundle.c_str()]];
    made.launchDate = [NSDate dateWithTimeIntervalSince1970:1'700'000'000.25 + pid];
    made.icon = [NSImage imageNamed:made.localizedName];
    [desktop().applications addObject:made];
    return made;
}

}  // namespace doubles
