// SPDX-License-Identifier: MIT
// File URIs, for other programs.
#pragma once

#include <filesystem>
#include <string>

namespace fadeloom {

/// The "file:" URI of an absolute path of arbitrary bytes; pure ASCII.
[[nodiscard]] std::string fileUri(const std::filesystem::path& file);

}  // namespace fadeloom
