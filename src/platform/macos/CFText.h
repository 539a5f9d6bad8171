// SPDX-License-Identifier: MIT
// Texts on their way into CoreFoundation and out of it.
#pragma once

#include "platform/macos/CFRef.h"

#include <string>
#include <string_view>

namespace fadeloom {

/// `text`: UTF-8; what is not becomes an empty text.
[[nodiscard]] CFRef<CFStringRef> cfText(std::string_view text);
/// `text` stays the caller's.
[[nodiscard]] std::string textOf(CFStringRef text);

}  // namespace fadeloom
