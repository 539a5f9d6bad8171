// SPDX-License-Identifier: MIT
#include "platform/linux/SafeText.h"

#include <cstdint>

namespace fadeloom {

namespace {

/// The length of the UTF-8 character at the start of `bytes`, which is not empty; 0 if it is invalid.
std::size_t characterLength(std::string_view bytes)
{
    const auto byte = [bytes](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::uint8_t first = byte(0);
    if (first < 0x80)
        return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    // Overlong encodings, surrogates, and values beyond the last code point.
    const bool isWrong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xED && byte(1) > 0x9F)
        || (first == 0xF0 && byte(1) < 0x90) || (first == 0xF4 && byte(1) > 0x8F);
    return isWrong ? 0 : length;
}

bool isControl(std::string_view character)
{
    const auto first = static_cast<std::uint8_t>(character[0]);
    const bool isSecondSet =
        character.size() == 2 && first == 0xC2 && static_cast<std::uint8_t>(character[1]) < 0xA0;
    return first < 0x20 || first == 0x7F || isSecondSet;
}

}  // namespace

std::string safeText(std::string_view bytes, std::size_t longest)
{
    std::string text;
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        std::string_view character = length == 0 ? "?" : bytes.substr(0, length);
        if (isControl(character))
            character = " ";
        if (text.size() + character.size() > longest)
            break;
        text += character;
        bytes.remove_prefix(length == 0 ? 1 : length);
    }
    return text;
}

}  // namespace fadeloom
