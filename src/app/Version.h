// SPDX-License-Identifier: MIT
// Which version of the program this is.
#pragma once

#include <string_view>

namespace fadeloom {

/// As the build declares it: "0.1.0".
[[nodiscard]] std::string_view programVersion();

/// The number of this build, by which versions are compared: "0" for one of a developer.
[[nodiscard]] std::string_view programBuild();

}  // namespace fadeloom
