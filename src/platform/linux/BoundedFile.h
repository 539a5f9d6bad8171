// SPDX-License-Identifier: MIT
// Reads small untrusted files.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace fadeloom {

/// The first `limit` bytes of a regular file; nullopt if it cannot be read or is not one. Never blocks, as reading a
/// pipe in the file's place would.
[[nodiscard]] std::optional<std::string> readBoundedFile(
    const std::filesystem::path& file, std::size_t limit);

}  // namespace fadeloom
