// SPDX-License-Identifier: MIT
// String and path conversion from and to Foundation. For Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include <filesystem>
#include <optional>
#include <string>

namespace fadeloom {

/// `text`: UTF-8; invalid text becomes an empty one.
inline NSString* nsText(const std::string& text)
{
    NSString* made = [NSString stringWithUTF8String:text.c_str()];
    return made != nil ? made : @"";
}

inline std::optional<std::string> textOf(NSString* text)
{
    if (const char* bytes = text.UTF8String)
        return bytes;
    return std::nullopt;
}

inline NSURL* nsURL(const std::filesystem::path& file)
{
    return [NSURL fileURLWithPath:nsText(file.native())];
}

/// Without the trailing slash of a folder's URL.
inline std::optional<std::filesystem::path> pathOf(NSURL* location)
{
    if (const char* bytes = location.path.UTF8String)
        return bytes;
    return std::nullopt;
}

}  // namespace fadeloom
