// SPDX-License-Identifier: MIT
// Windows that ask the user one thing.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// A message that the user has to answer. Without buttons it has the system's own single one.
struct Alert {
    std::string title;
    std::string text;
    std::vector<std::string> buttons{};  // The first is the default.
};

/// Thread: main.
class Dialogs {
public:
    using FolderChosen = std::function<void(const std::optional<std::filesystem::path>& folder)>;
    using ApplicationChosen = std::function<void(const std::optional<std::string>& bundleID)>;

    virtual ~Dialogs() = default;

    /// Asks for a folder, which may be a new one, and shows `start` first. `prompt` stands on the button that confirms.
    /// `done` gets the folder, or nothing after a cancel; it is called once, later or before this returns.
    virtual void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) = 0;
    /// Asks for an installed application. `done` gets its bundle identifier, or nothing after a cancel or for something
    /// that is no application; it is called once, later or before this returns.
    virtual void chooseApplication(ApplicationChosen done) = 0;
    /// Shows a message above other windows. `answered` gets the index of the button, 0 for the system's own; it is called
    /// once, later or before this returns. Closing the message otherwise counts as its last button.
    virtual void showAlert(const Alert& alert, std::function<void(std::size_t button)> answered) = 0;
};

}  // namespace fadeloom
