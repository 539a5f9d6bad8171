// SPDX-License-Identifier: MIT
// Modal questions to the user.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// A message that the user must dismiss. Without buttons it has the system's default one.
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

    /// Prompts for a folder, which may be new, starting at `start`. `prompt`: the label of the confirmation button.
    /// `done` gets the folder, or nullopt if cancelled; it is called once, later or before this returns.
    virtual void chooseFolder(
        const std::filesystem::path& start, const std::string& prompt, FolderChosen done) = 0;
    /// Prompts for an installed application. `done` gets its bundle identifier, or nullopt if cancelled or not an
    /// application; it is called once, later or before this returns.
    virtual void chooseApplication(ApplicationChosen done) = 0;
    /// Shows a message above other windows. `answered` gets the index of the button, 0 for the system's default; it is
    /// called once, later or before this returns. Closing the message otherwise counts as its last button.
    virtual void showAlert(const Alert& alert, std::function<void(std::size_t button)> answered) = 0;
};

}  // namespace fadeloom
