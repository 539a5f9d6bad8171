// SPDX-License-Identifier: MIT
#include "commands/NumberText.h"

#include <array>
#include <charconv>
#include <locale>
#include <sstream>

namespace fadeloom {

std::optional<float> numberOf(const std::string& text)
{
    // Not std::from_chars: one of our standard libraries does not support it for floating point.
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    float number = 0;
    stream >> std::noskipws >> number;
    if (stream.fail() || stream.peek() != std::istringstream::traits_type::eof())
        return std::nullopt;
    return number;
}

std::string numberText(float number)
{
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.begin(), buffer.end(), number).ptr;
    return {buffer.begin(), end};
}

}  // namespace fadeloom
