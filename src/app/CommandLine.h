// SPDX-License-Identifier: MIT
// The parsed command line.
#pragma once

#include <expected>
#include <span>
#include <string>
#include <string_view>

namespace fadeloom {

struct CommandLine {
    enum class Action { runTray, runHeadless, giveCommand, renderScreenshots, showHelp, showVersion };

    Action action = Action::runTray;
    bool isSimulated = false;  // On a simulation instead of this machine's audio system.
    bool isInBackground = false;  // A second start does not open the panel.
    // For `renderScreenshots`.
    std::string outputFolder{};
    std::string languageSuffix{};
    bool isLight = false;

    friend bool operator==(const CommandLine&, const CommandLine&) = default;
};

/// `arguments`: without the program's own name. The error is a sentence for the user, in English.
[[nodiscard]] std::expected<CommandLine, std::string> parseCommandLine(
    std::span<const std::string_view> arguments);

/// The usage message, in several lines.
[[nodiscard]] std::string_view usageText();

}  // namespace fadeloom
