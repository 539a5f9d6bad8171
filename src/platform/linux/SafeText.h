// SPDX-License-Identifier: MIT
// Makes text that can be shown, logged and stored out of bytes that anyone may have chosen.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace fadeloom {

/// UTF-8 without control characters, at most `longest` bytes: controls become blanks, what is not UTF-8 becomes "?",
/// and the rest is cut off between characters.
[[nodiscard]] std::string safeText(std::string_view bytes, std::size_t longest = 255);

}  // namespace fadeloom
