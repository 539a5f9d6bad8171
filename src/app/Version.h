// SPDX-License-Identifier: MIT
// Which version of the program this is.
#pragma once

#include <string_view>

namespace fadeloom {

/// As the build declares it: "0.1.0".
[[nodiscard]] std::string_view programVersion();

}  // namespace fadeloom
