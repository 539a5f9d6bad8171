// SPDX-License-Identifier: MIT
// Locale-independent parsing and formatting of numbers.
#pragma once

#include <optional>
#include <string>

namespace fadeloom {

/// The number that the whole text represents; nullopt for anything else, and if it is not finite.
[[nodiscard]] std::optional<float> numberOf(const std::string& text);

/// The shortest text that reads back as the same number.
[[nodiscard]] std::string numberText(float number);

}  // namespace fadeloom
