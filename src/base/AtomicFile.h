// SPDX-License-Identifier: MIT
// Files that are read and replaced atomically.
//
// A reader, concurrent or after a crash during the replacement, finds either the old content or the new, never a mix.
#pragma once

#include "base/FileError.h"

#include <cstddef>
#include <expected>
#include <filesystem>
#include <string>
#include <string_view>

namespace fadeloom::AtomicFile {

struct ReadError {
    enum class Reason { missing, unreadable, tooLarge };

    Reason reason{};
    FileError error{};  // Without a system error for a file that is too large.

    friend bool operator==(const ReadError&, const ReadError&) = default;
};

/// Reads a regular file; anything else, such as a pipe or a device, counts as unreadable and is not waited for.
/// `missing` is only what certainly does not exist: a file in a folder that cannot be searched is unreadable. Thread:
/// any.
[[nodiscard]] std::expected<std::string, ReadError> read(
    const std::filesystem::path& file, std::size_t maximumSize);

/// Replaces the content of a file, or creates it, readable only by its owner; an existing file keeps its permissions
/// and, as far as the user may change it, its owner, and a symbolic link keeps pointing to its target. After an error
/// the old content is untouched and no temporary file is left. Thread: any, one at a time per file.
[[nodiscard]] std::expected<void, FileError> replace(
    const std::filesystem::path& file, std::string_view content);

}  // namespace fadeloom::AtomicFile
