// SPDX-License-Identifier: MIT
// Windows that ask the user one thing.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

/// Thread: main.
class Dialogs {
public:
    using FolderChosen = std::function<void(const std::optional<std::filesystem::path>& folder)>;

    virtual ~Dialogs() = default;

    /// Asks for a folder, which may be a new one, and shows `start` first. `prompt` stands on the button that confirms.
    /// `done` gets the folder, or nothing after a cancel; it is called once, later or before this returns.
    virtual void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) = 0;
};

}  // namespace fadeloom
