// SPDX-License-Identifier: MIT
// Strings, numbers, and the CoreFoundation functions for them.
#include "tests/macos/doubles/Immortal.h"
#include "tests/macos/doubles/Runtime.h"

#include <cstring>
#include <map>
#include <string>

using doubles::crash;

namespace {

struct CompiledText {
    static constexpr int isUtf16 = 0x7D0;

    const void* type;
    int flags;
    const char* bytes;
    long length;
};

/// A string literal that is not ASCII is compiled as UTF-16.
const std::string& converted(const CompiledText& text)
{
    static std::map<const char*, std::string> known;
    auto [entry, isNew] = known.try_emplace(text.bytes);
    if (isNew)
        for (long i = 0; i < text.length; ++i) {
            const auto unit = reinterpret_cast<const char16_t*>(text.bytes)[i];
            if (unit < 0x80) {
                entry->second += static_cast<char>(unit);
                continue;
            }
            if (unit >= 0x800)
                entry->second += static_cast<char>(0xE0 | unit >> 12);
            entry->second += static_cast<char>(unit < 0x800 ? 0xC0 | unit >> 6 : 0x80 | (unit >> 6 & 0x3F));
            entry->second += static_cast<char>(0x80 | (unit & 0x3F));
        }
    return entry->second;
}

bool isUtf8(const std::string& bytes)
{
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        const std::size_t length = lead < 0x80 ? 1
            : lead >> 5 == 6                   ? 2
            : lead >> 4 == 14                  ? 3
            : lead >> 3 == 30                  ? 4
                                               : 0;
        if (length == 0 || i + length > bytes.size())
            return false;
        for (std::size_t next = 1; next < length; ++next)
            if ((static_cast<unsigned char>(bytes[i + next]) & 0xC0) != 0x80)
                return false;
        i += length;
    }
    return true;
}

}  // namespace

@interface NSString ()
- (instancetype)initWithBytes:(const std::string&)bytes;
@end

@implementation NSString {
    std::string bytes_;
}

- (instancetype)initWithBytes:(const std::string&)bytes
{
    if ((self = [super init]))
        bytes_ = bytes;
    return self;
}
+ (instancetype)stringWithUTF8String:(const char*)bytes
{
    return isUtf8(bytes) ? [[self alloc] initWithBytes:bytes] : nil;
}
- (const char*)UTF8String
{
    return bytes_.c_str();
}
- (NSUInteger)length
{
    return std::strlen(self.UTF8String);
}
- (BOOL)isEqualToString:(NSString*)other
{
    return other != nil && std::strcmp(self.UTF8String, other.UTF8String) == 0;
}
- (BOOL)isEqual:(id)other
{
    return [other isKindOfClass:NSString.class] && [self isEqualToString:other];
}
- (NSString*)stringByReplacingOccurrencesOfString:(NSString*)target withString:(NSString*)replacement
{
    std::string text = self.UTF8String;
    const std::string from = target.UTF8String;
    const std::string to = replacement.UTF8String;
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return [[NSString alloc] initWithBytes:text];
}

@end

@implementation ImmortalObject
@end

@implementation ImmortalText

- (const char*)UTF8String
{
    const auto& text = *(__bridge const CompiledText*)self;
    return text.flags == CompiledText::isUtf16 ? converted(text).c_str() : text.bytes;
}

@end

__asm__(".globl __CFConstantStringClassReference\n"
        ".set __CFConstantStringClassReference, OBJC_CLASS_$_ImmortalText\n");

@implementation NSNumber {
    unsigned int value_;
}

- (instancetype)initWithValue:(unsigned int)value
{
    if ((self = [super init]))
        value_ = value;
    return self;
}
+ (NSNumber*)numberWithUnsignedInt:(unsigned int)value
{
    return [[NSNumber alloc] initWithValue:value];
}
- (unsigned int)unsignedIntValue
{
    return value_;
}
- (BOOL)boolValue
{
    return value_ != 0;
}

@end

extern "C" {

const CFBooleanRef kCFBooleanTrue = (__bridge_retained CFBooleanRef)[[NSNumber alloc] initWithValue:1];
const CFBooleanRef kCFBooleanFalse = (__bridge_retained CFBooleanRef)[[NSNumber alloc] initWithValue:0];

void CFRelease(CFTypeRef object)
{
    if (object == nullptr)
        crash("CFRelease of nothing");
    (void)(__bridge_transfer id)object;
}

CFStringRef CFStringCreateWithBytes(
    CFAllocatorRef, const UInt8* bytes, CFIndex count, CFStringEncoding encoding, Boolean)
{
    const std::string text(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
    if (encoding != kCFStringEncodingUTF8 || !isUtf8(text))
        return nullptr;
    return (__bridge_retained CFStringRef)[[NSString alloc] initWithBytes:text];
}

CFIndex CFStringGetLength(CFStringRef text)
{
    return static_cast<CFIndex>(((__bridge NSString*)text).length);
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding)
{
    return 3 * length;
}

Boolean CFStringGetCString(CFStringRef text, char* buffer, CFIndex size, CFStringEncoding)
{
    const char* bytes = ((__bridge NSString*)text).UTF8String;
    if (std::strlen(bytes) >= static_cast<std::size_t>(size))
        return false;
    std::strcpy(buffer, bytes);
    return true;
}
}
