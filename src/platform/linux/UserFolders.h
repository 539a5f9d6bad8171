// SPDX-License-Identifier: MIT
// The user's folders for music, pictures and the like.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace fadeloom {

/// The folder that `text`, the contents of "user-dirs.dirs", assigns to `key`, such as "XDG_MUSIC_DIR". nullopt if there
/// is none, or it is the home folder itself, which means that there is to be none.
///
/// The file has shell syntax, but only two forms are supported: a path in double quotes that begins with "$HOME/" or
/// "/". Lines of any other form are ignored; of several valid ones the last counts.
[[nodiscard]] std::optional<std::filesystem::path> userFolder(
    std::string_view text, std::string_view key, const std::filesystem::path& home);

}  // namespace fadeloom
