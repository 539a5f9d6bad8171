// SPDX-License-Identifier: MIT
// The folders that a user chose for music, pictures and the like.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace fadeloom {

/// The folder that `text`, the content of "user-dirs.dirs", names for `key`, such as "XDG_MUSIC_DIR". Absent when it
/// names none, or the home folder itself, which says that there is to be none.
///
/// The file is a shell's, but only two forms count: a path in double quotes that begins with "$HOME/" or "/". Lines of
/// any other form are passed over; of several good ones the last counts.
[[nodiscard]] std::optional<std::filesystem::path> userFolder(
    std::string_view text, std::string_view key, const std::filesystem::path& home);

}  // namespace fadeloom
