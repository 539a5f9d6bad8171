// SPDX-License-Identifier: MIT
// A parsed desktop entry.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// The group "Desktop Entry" of one file. Texts are as written, with escapes undone.
struct DesktopEntry {
    std::string id;  // "org.example.Player": the file's name below "applications", without its ending.
    std::filesystem::path file;
    bool isApplication = false;
    std::optional<std::string> name;  // In the best available language.
    std::string icon;
    std::string tryExec;
    std::vector<std::string> command;  // The program and its fixed arguments; empty if there is none.
    std::filesystem::path program{};  // The resolved program of the command; empty if it was not found.
    std::filesystem::path realProgram{};  // The same without symbolic links.
    std::string windowClass;  // "StartupWMClass".
    std::string site{};  // The host of the web page that it shows; empty if unknown.
    std::string chromiumID{};  // Identifier of a web app in Chromium-based browsers; empty for others.
    bool noDisplay = false;
    bool isHidden = false;  // Treated as deleted, and hides others with this id.
    bool startsAtLogin = true;  // For autostart entries: not disabled by a desktop tool.
    bool wantsTerminal = false;
    bool isTerminalEmulator = false;

    /// Whether children of its processes belong to the application, rather than being separate programs.
    [[nodiscard]] bool answersForChildren() const
    {
        return !noDisplay && !wantsTerminal && !isTerminalEmulator;
    }
};

/// In bytes; anything longer is not a desktop entry.
inline constexpr std::size_t longestDesktopEntry = 1 << 20;

/// Parses a desktop entry. `languages`: keys of localised names, in order of preference. Damaged lines are ignored;
/// nullopt without the group "Desktop Entry".
[[nodiscard]] std::optional<DesktopEntry> parseDesktopEntry(
    std::string_view text, const std::vector<std::string>& languages);

/// The arguments of an "Exec" line whose escapes are undone: unquoted, without arguments that have field codes ("%U"),
/// "%%" replaced by "%". A leading "env" with its assignments is removed.
[[nodiscard]] std::vector<std::string> parseExec(std::string_view line);

/// The value of an "Exec" key that starts `program`, a path of arbitrary bytes, without arguments.
[[nodiscard]] std::string execValue(std::string_view program);

}  // namespace fadeloom
