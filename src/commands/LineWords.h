// SPDX-License-Identifier: MIT
// Takes a command line apart.
#pragma once

#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// The words of a line, parted by blanks. Double quotes hold blanks together; between them a backslash takes the
/// next character as it is. The error is a sentence for the user, in English.
[[nodiscard]] std::expected<std::vector<std::string>, std::string> wordsOf(std::string_view line);

}  // namespace fadeloom
