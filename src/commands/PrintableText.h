// SPDX-License-Identifier: MIT
// Text from elsewhere (names of applications and devices), made fit for one line of a terminal.
//
// A name may hold anything: line feeds that would forge a line, escape sequences that would repaint the screen, marks
// that turn the writing direction round, bytes that are no text at all.
#pragma once

#include <string>
#include <string_view>

namespace fadeloom {

/// The text with every character that could do harm, and every byte that is not UTF-8, replaced by "�".
[[nodiscard]] std::string printable(std::string_view text);

/// How many columns of a terminal the text takes. `text`: printable.
[[nodiscard]] int displayWidth(std::string_view text);

enum class Alignment { left, right };

/// The text in exactly `width` columns (0 or more): filled up with blanks, or cut and ended with "…".
/// `text`: printable.
[[nodiscard]] std::string fitted(std::string_view text, int width, Alignment alignment = Alignment::left);

/// The text as one word of a line: printable, and between double quotes when it is empty or holds a blank, a double
/// quote or a backslash, the latter two behind a backslash each.
[[nodiscard]] std::string asWord(std::string_view text);

}  // namespace fadeloom
