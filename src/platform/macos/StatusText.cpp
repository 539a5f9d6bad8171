// SPDX-License-Identifier: MIT
#include "platform/macos/StatusText.h"

#include <algorithm>
#include <cstdint>

namespace fadeloom {
namespace {

std::string charactersOf(std::int32_t status)
{
    std::string characters;
    for (int shift = 24; shift >= 0; shift -= 8)
        characters += static_cast<char>(static_cast<std::uint32_t>(status) >> shift & 0xFFU);
    return characters;
}

}  // namespace

std::string statusText(std::int32_t status)
{
    const std::string number = "OSStatus " + std::to_string(status);
    const std::string characters = charactersOf(status);
    const bool isPrintable =
        std::ranges::all_of(characters, [](char each) { return each >= ' ' && each <= '~'; });
    return isPrintable ? number + " ('" + characters + "')" : number;
}

}  // namespace fadeloom
