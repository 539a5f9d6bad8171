// SPDX-License-Identifier: MIT
// The version of the program.
#pragma once

#include <string_view>

namespace fadeloom {

/// As declared by the build: "0.1.0".
[[nodiscard]] std::string_view programVersion();

/// The build number, by which versions are compared: "0" for a developer build.
[[nodiscard]] std::string_view programBuild();

}  // namespace fadeloom
