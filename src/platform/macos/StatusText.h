// SPDX-License-Identifier: MIT
// A status of the platform, in words.
#pragma once

#include <cstdint>
#include <string>

namespace fadeloom {

/// "OSStatus -50", or "OSStatus 560947818 ('!obj')" when the number is four printable characters.
[[nodiscard]] std::string statusText(std::int32_t status);

}  // namespace fadeloom
