// SPDX-License-Identifier: MIT
// Extracts the web page that a desktop entry opens.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace fadeloom {

/// The host of the first URL in a text, in lower case; empty if there is none.
[[nodiscard]] std::string hostOf(std::string_view text);

/// The same for the "Exec" lines of a whole desktop entry, including its actions.
[[nodiscard]] std::string hostOfExec(std::string_view content);

/// The identifier that a Chromium-based browser is told to open as an app; empty if there is none.
[[nodiscard]] std::string chromiumIDOf(std::span<const std::string> command);

/// The window class on a program's command line ("--class=X" or "--class X"); empty if there is none.
[[nodiscard]] std::string windowClassOf(std::span<const std::string> arguments);

}  // namespace fadeloom
