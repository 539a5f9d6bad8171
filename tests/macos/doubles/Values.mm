// SPDX-License-Identifier: MIT
// URLs, identifiers and dates.
#include "tests/macos/doubles/Values.h"
#include "tests/macos/doubles/UrlText.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <cctype>
#include <string>

const NSRect NSZeroRect{};

@implementation NSURL {
    std::string text_;
    bool isFile_;
}

+ (NSURL*)fileURLWithPath:(NSString*)path
{
    NSURL* made = [[NSURL alloc] init];
    made->text_ = path.UTF8String;
    made->isFile_ = true;
    return made;
}
+ (instancetype)URLWithString:(NSString*)text
{
    const std::string given = text.UTF8String;
    if (given.empty() || given.find(' ') != std::string::npos)
        return nil;
    NSURL* made = [[NSURL alloc] init];
    made->text_ = given;
    return made;
}
- (NSString*)path
{
    // Without the trailing slash of a folder's URL.
    const bool hasSlash = text_.size() > 1 && text_.back() == '/';
    return isFile_ ? [NSString stringWithUTF8String:text_.substr(0, text_.size() - hasSlash).c_str()] : nil;
}
- (NSString*)absoluteString
{
    return [NSString stringWithUTF8String:((isFile_ ? "file://" : "") + text_).c_str()];
}

@end

extern "C" CFURLRef CFURLCreateFromFileSystemRepresentation(
    CFAllocatorRef, const UInt8* path, CFIndex count, Boolean)
{
    const std::string text(reinterpret_cast<const char*>(path), static_cast<std::size_t>(count));
    return (__bridge_retained CFURLRef)[NSURL fileURLWithPath:[NSString stringWithUTF8String:text.c_str()]];
}

@implementation NSUUID {
    std::string text_;
}

- (instancetype)initWithUUIDString:(NSString*)text
{
    std::string given = text.UTF8String;
    if (given.size() != 36)
        return nil;
    std::ranges::transform(given, given.begin(), [](unsigned char each) { return std::toupper(each); });
    if ((self = [super init]))
        text_ = given;
    return self;
}
- (NSString*)UUIDString
{
    return [NSString stringWithUTF8String:text_.c_str()];
}

@end

@implementation NSDate {
    NSTimeInterval sinceReference_;
}

+ (instancetype)dateWithTimeIntervalSince1970:(NSTimeInterval)seconds
{
    NSDate* made = [[self alloc] init];
    made->sinceReference_ = seconds - 978307200;
    return made;
}
- (NSTimeInterval)timeIntervalSinceReferenceDate
{
    return sinceReference_;
}

@end

@interface NSError ()
@property (copy) NSString* localizedDescription;
@end

@implementation NSError
@end

namespace doubles {

std::string urlPath(CFURLRef location)
{
    return ((__bridge NSURL*)location).path.UTF8String;
}

NSError* errorSaying(NSString* words)
{
    NSError* error = [[NSError alloc] init];
    error.localizedDescription = words;
    return error;
}

}  // namespace doubles
