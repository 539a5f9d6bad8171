// SPDX-License-Identifier: MIT
// Numbers as they are typed and printed, with a point in every language.
#pragma once

#include <optional>
#include <string>

namespace fadeloom {

/// The number that the whole text is; absent for anything else, and for what is not finite.
[[nodiscard]] std::optional<float> numberOf(const std::string& text);

/// The shortest text that reads back the same.
[[nodiscard]] std::string numberText(float number);

}  // namespace fadeloom
