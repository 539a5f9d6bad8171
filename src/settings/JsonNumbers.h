// SPDX-License-Identifier: MIT
// Numbers that are valid JSON but too large for any number type.
#pragma once

#include <string>
#include <string_view>

namespace fadeloom {

/// Replaces each number too large for a float (1e39) by the largest float of its sign. The parser would reject the
/// whole text because of one such number, which merely is out of range. Everything else is unchanged, valid or not.
[[nodiscard]] std::string withFiniteNumbers(std::string_view json);

}  // namespace fadeloom
