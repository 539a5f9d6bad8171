// SPDX-License-Identifier: MIT
// Reads small files of other people without trusting them.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace fadeloom {

/// The first `limit` bytes of a regular file; absent when it cannot be read or is none. Never waits, as reading a pipe
/// that someone has put in the file's place would.
[[nodiscard]] std::optional<std::string> readBoundedFile(
    const std::filesystem::path& file, std::size_t limit);

}  // namespace fadeloom
