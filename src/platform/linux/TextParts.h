// SPDX-License-Identifier: MIT
// Splits text at a separator.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

namespace fadeloom {

/// The parts between separators, including empty ones, except after a trailing separator. They are views.
[[nodiscard]] inline std::vector<std::string_view> parts(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const auto end = std::min(text.find(separator), text.size());
        parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

}  // namespace fadeloom
