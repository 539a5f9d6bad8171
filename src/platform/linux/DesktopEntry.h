// SPDX-License-Identifier: MIT
// A desktop entry: what the desktop knows of an application.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// Of the group "Desktop Entry" of one file. Texts are as they were written, with their escapes undone.
struct DesktopEntry {
    std::string id;  // "org.example.Player": the file's name below "applications", without its ending.
    std::filesystem::path file;
    bool isApplication = false;
    std::optional<std::string> name;  // In the best language there is.
    std::string icon;
    std::string tryExec;
    std::vector<std::string> command;  // The program and its fixed arguments; empty for none.
    std::filesystem::path program{};  // The command's program where it was found; empty for nowhere.
    std::filesystem::path realProgram{};  // The same without symbolic links.
    std::string windowClass;  // "StartupWMClass".
    std::string site{};  // The host of the web page that it shows; empty for none that is told.
    std::string chromiumID{};  // Of a web app, as browsers of Chromium's kind name it; empty for any other.
    bool noDisplay = false;
    bool isHidden = false;  // As if the file did not exist, nor another one of this id.
    bool startsAtLogin = true;  // Among the autostart entries: not switched off by a tool of the desktop.
    bool wantsTerminal = false;
    bool isTerminalEmulator = false;

    /// Whether its processes' children are children of the application, and not programs of their own.
    [[nodiscard]] bool answersForChildren() const
    {
        return !noDisplay && !wantsTerminal && !isTerminalEmulator;
    }
};

/// In bytes; what is longer is no desktop entry.
inline constexpr std::size_t longestDesktopEntry = 1 << 20;

/// Reads the text of a desktop entry. `languages`: keys of localised names, best first. Damaged lines are passed over;
/// absent without the group "Desktop Entry".
[[nodiscard]] std::optional<DesktopEntry> parseDesktopEntry(
    std::string_view text, const std::vector<std::string>& languages);

/// The arguments of an "Exec" line whose escapes are undone: quotes taken off, arguments with field codes ("%U") left
/// out, "%%" made "%". A leading "env" with its assignments is no part of it.
[[nodiscard]] std::vector<std::string> parseExec(std::string_view line);

/// The value of an "Exec" key that starts `program`, a path of any bytes, without arguments.
[[nodiscard]] std::string execValue(std::string_view program);

}  // namespace fadeloom
