// SPDX-License-Identifier: MIT
// Formats commands for the socket, and replies for printing.
#pragma once

#include "ctl/Status.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom::ctl {

/// A word in double quotes, which may contain spaces.
[[nodiscard]] std::string quoted(std::string_view word);
/// The words of a command in one line.
[[nodiscard]] std::string lineOf(std::span<const std::string> words);

/// The parts of a one-line reply.
struct Answer {
    Status status = refused;
    std::string_view sentence;  // Without its kind, "ok" or "error".

    [[nodiscard]] static Answer parse(std::string_view line);
};

/// The items of a list, which are separated by "; " outside of double quotes.
[[nodiscard]] std::vector<std::string_view> partsOf(std::string_view sentence);
/// Removes the first word from `text` and returns it without its quotes.
std::string takeWord(std::string_view& text);
/// The reply to a command that reads one value of an app, without the verb and the app, which the caller knows.
[[nodiscard]] std::string valueIn(std::string_view sentence);

}  // namespace fadeloom::ctl
