// SPDX-License-Identifier: MIT
// What we use of CoreFoundation, declared by us.
#pragma once

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#define API_AVAILABLE(...) API_AVAILABLE_(__VA_ARGS__)
#define API_AVAILABLE_(platform) __attribute__((availability(API_##platform)))
#define API_macos(version) macos, introduced = version

// The platform's codes are enumerators of their property's type, and nullability is annotated.
#define CF_ENUM(type) enum : type
#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")

typedef uint8_t UInt8;
typedef int16_t SInt16;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef uint64_t UInt64;
typedef SInt32 OSStatus;
typedef unsigned char Boolean;
typedef float Float32;
typedef double Float64;

typedef signed long CFIndex;
typedef unsigned long CFTypeID;
typedef UInt32 CFStringEncoding;

#ifdef __OBJC__
#define FADELOOM_BRIDGED(name) __attribute__((objc_bridge(name)))
#else
#define FADELOOM_BRIDGED(name)
#endif

typedef const void* CFTypeRef;
typedef const struct FADELOOM_BRIDGED(NSString) __CFString* CFStringRef;
typedef const struct FADELOOM_BRIDGED(NSArray) __CFArray* CFArrayRef;
typedef const struct FADELOOM_BRIDGED(NSDictionary) __CFDictionary* CFDictionaryRef;
typedef const struct FADELOOM_BRIDGED(NSURL) __CFURL* CFURLRef;
typedef const struct FADELOOM_BRIDGED(NSNumber) __CFBoolean* CFBooleanRef;
typedef const struct __CFAllocator* CFAllocatorRef;

/// Only the addresses of these matter to us: they select retaining of the elements.
typedef struct {
    const void* retainsElements;
} CFArrayCallBacks;
typedef CFArrayCallBacks CFDictionaryKeyCallBacks;
typedef CFArrayCallBacks CFDictionaryValueCallBacks;

#define kCFAllocatorDefault ((CFAllocatorRef)0)
#define kCFStringEncodingUTF8 ((CFStringEncoding)0x08000100)

#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString("" text ""))

#ifdef __cplusplus
extern "C" {
#endif

extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;
extern const CFArrayCallBacks kCFTypeArrayCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

void CFRelease(CFTypeRef object);

CFStringRef CFStringCreateWithBytes(CFAllocatorRef allocator, const UInt8* bytes, CFIndex count,
    CFStringEncoding encoding, Boolean isExternalRepresentation);
CFIndex CFStringGetLength(CFStringRef text);
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
Boolean CFStringGetCString(CFStringRef text, char* buffer, CFIndex size, CFStringEncoding encoding);

CFArrayRef CFArrayCreate(
    CFAllocatorRef allocator, const void** values, CFIndex count, const CFArrayCallBacks* callBacks);
CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void** keys, const void** values,
    CFIndex count, const CFDictionaryKeyCallBacks* keyCallBacks,
    const CFDictionaryValueCallBacks* valueCallBacks);
CFURLRef CFURLCreateFromFileSystemRepresentation(
    CFAllocatorRef allocator, const UInt8* path, CFIndex count, Boolean isDirectory);

#ifdef __cplusplus
}
#endif
