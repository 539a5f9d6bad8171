// SPDX-License-Identifier: MIT
#include "shell/Translate.h"

namespace fadeloom {

std::string withValue(std::string text, std::string_view value)
{
    constexpr std::string_view place = "%1";
    if (const auto at = text.find(place); at != std::string::npos)
        text.replace(at, place.size(), value);
    return text;
}

}  // namespace fadeloom
