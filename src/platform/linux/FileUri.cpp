// SPDX-License-Identifier: MIT
#include "platform/linux/FileUri.h"

#include <cstdint>
#include <string_view>

namespace fadeloom {

std::string fileUri(const std::filesystem::path& file)
{
    // Characters unreserved in every part of a URI, and slashes. Others could be left as they are, but need not.
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string uri = "file://";
    for (const char c : file.native()) {
        const auto byte = static_cast<std::uint8_t>(c);
        if (plain.find(c) != std::string_view::npos)
            uri += c;
        else
            uri += {'%', digits[byte / 16], digits[byte % 16]};
    }
    return uri;
}

}  // namespace fadeloom
