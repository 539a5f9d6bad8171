// SPDX-License-Identifier: MIT
// Names files to other programs.
#pragma once

#include <filesystem>
#include <string>

namespace fadeloom {

/// The "file:" URI of an absolute path of any bytes; it is plain ASCII.
[[nodiscard]] std::string fileUri(const std::filesystem::path& file);

}  // namespace fadeloom
