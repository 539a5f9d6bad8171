// SPDX-License-Identifier: MIT
// The web page that a desktop entry opens.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace fadeloom {

/// The host of the first web address in a text, in lower case; empty for none.
[[nodiscard]] std::string hostOf(std::string_view text);

/// The same of the "Exec" lines of a whole desktop entry, its actions included.
[[nodiscard]] std::string hostOfExec(std::string_view content);

/// The identifier that a browser of Chromium's kind is told to open as an app; empty for none.
[[nodiscard]] std::string chromiumIDOf(std::span<const std::string> command);

/// The window class that a program is told to have ("--class=X" or "--class X"); empty for none.
[[nodiscard]] std::string windowClassOf(std::span<const std::string> arguments);

}  // namespace fadeloom
