// SPDX-License-Identifier: MIT
// Files that are read and replaced as a whole.
//
// Whoever reads while a file is being replaced, or after the machine went down in the middle of it, finds the old
// content or the new one and never a part.
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
    FileError error{};  // Without a reason of the system for a file that is too large.

    friend bool operator==(const ReadError&, const ReadError&) = default;
};

/// Reads a regular file; anything else, a pipe or a device, counts as unreadable and is not waited for. Missing is only
/// what is certainly not there: a file behind a folder that cannot be searched is unreadable. Thread: any.
[[nodiscard]] std::expected<std::string, ReadError> read(
    const std::filesystem::path& file, std::size_t maximumSize);

/// Puts `content` in the place of a file, or makes it, readable by its owner alone; a file that is there keeps its
/// permissions and, as far as the user may give it away, its owner, and a symbolic link keeps pointing to it. After an
/// error the old content is untouched and nothing else is left in the folder. Thread: any, one at a time for a file.
[[nodiscard]] std::expected<void, FileError> replace(
    const std::filesystem::path& file, std::string_view content);

}  // namespace fadeloom::AtomicFile
