// SPDX-License-Identifier: MIT
// Splits a command line into words.
#pragma once

#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// The words of a line, separated by spaces. Double quotes group; inside them a backslash escapes the next character.
/// The error is a sentence for the user, in English.
[[nodiscard]] std::expected<std::vector<std::string>, std::string> wordsOf(std::string_view line);

}  // namespace fadeloom
