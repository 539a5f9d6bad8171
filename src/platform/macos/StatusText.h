// SPDX-License-Identifier: MIT
// Formats a status code of the platform.
#pragma once

#include <cstdint>
#include <string>

namespace fadeloom {

/// "OSStatus -50", or "OSStatus 560947818 ('!obj')" if the number is four printable characters.
[[nodiscard]] std::string statusText(std::int32_t status);

}  // namespace fadeloom
