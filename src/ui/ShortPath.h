// SPDX-License-Identifier: MIT
// A folder's path for display.
#pragma once

#include <QString>

#include <filesystem>

namespace fadeloom {

/// The path, with "~" for the user's home folder.
[[nodiscard]] QString shortPath(const std::filesystem::path& path);

}  // namespace fadeloom
