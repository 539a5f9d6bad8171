// SPDX-License-Identifier: MIT
// Makes untrusted text (names of applications and devices) safe for one line of a terminal.
//
// A name may contain anything: line feeds that would forge a line, escape sequences that would repaint the screen,
// bidirectional control characters, invalid UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace fadeloom {

/// The text with every harmful character, and every byte that is not UTF-8, replaced by "�".
[[nodiscard]] std::string printable(std::string_view text);

/// The number of terminal columns that the text occupies. `text`: printable.
[[nodiscard]] int displayWidth(std::string_view text);

enum class Alignment { left, right };

/// The text in exactly `width` columns (0 or more): padded with spaces, or truncated with "…". `text`: printable.
[[nodiscard]] std::string fitted(std::string_view text, int width, Alignment alignment = Alignment::left);

/// The text as one word of a line: printable, and in double quotes if it is empty or contains a space, a double quote
/// or a backslash, with the latter two escaped by a backslash.
[[nodiscard]] std::string asWord(std::string_view text);

}  // namespace fadeloom
