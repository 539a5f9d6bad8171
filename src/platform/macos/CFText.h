// SPDX-License-Identifier: MIT
// String conversion from and to CoreFoundation.
#pragma once

#include "platform/macos/CFRef.h"

#include <string>
#include <string_view>

namespace fadeloom {

/// `text`: UTF-8; invalid text becomes an empty one.
[[nodiscard]] CFRef<CFStringRef> cfText(std::string_view text);
/// `text` remains the caller's.
[[nodiscard]] std::string textOf(CFStringRef text);

}  // namespace fadeloom
