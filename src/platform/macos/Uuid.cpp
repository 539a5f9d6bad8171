// SPDX-License-Identifier: MIT
#include "platform/macos/Uuid.h"

#include <random>
#include <string_view>

namespace fadeloom {

std::string makeUuid()
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    // x: any digit; y: one of the four digits allowed by the variant.
    constexpr std::string_view shape = "xxxxxxxx-xxxx-4xxx-yxxx-xxxxxxxxxxxx";

    std::random_device source;
    std::string text(shape);
    for (char& place : text) {
        if (place == 'x')
            place = digits[source() % 16];
        else if (place == 'y')
            place = digits[8 + source() % 4];
    }
    return text;
}

}  // namespace fadeloom
