// SPDX-License-Identifier: MIT
// Sanitizes untrusted bytes for display, logs and storage.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace fadeloom {

/// UTF-8 without control characters, at most `longest` bytes: controls become spaces, invalid UTF-8 becomes "?", and
/// the rest is truncated at a character boundary.
[[nodiscard]] std::string safeText(std::string_view bytes, std::size_t longest = 255);

}  // namespace fadeloom
