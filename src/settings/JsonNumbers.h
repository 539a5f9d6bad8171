// SPDX-License-Identifier: MIT
// Numbers that are good JSON and too large for any number type.
#pragma once

#include <string>
#include <string_view>

namespace fadeloom {

/// Replaces each number too large for a float (1e39) by the largest float of its sign. The parser refuses a whole text
/// for one such number, where it is only another number out of range. Everything else stays, valid or not.
[[nodiscard]] std::string withFiniteNumbers(std::string_view json);

}  // namespace fadeloom
