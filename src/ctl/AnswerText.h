// SPDX-License-Identifier: MIT
// Words as they are sent, and answers as they are printed.
#pragma once

#include "ctl/Status.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom::ctl {

/// A word between double quotes, which keep blanks together.
[[nodiscard]] std::string quoted(std::string_view word);
/// The words of a command in one line.
[[nodiscard]] std::string lineOf(std::span<const std::string> words);

/// An answer in one line, taken apart.
struct Answer {
    Status status = refused;
    std::string_view sentence;  // Without its kind, "ok" or "error".

    [[nodiscard]] static Answer parse(std::string_view line);
};

/// The parts of a list, which "; " stands between outside of double quotes.
[[nodiscard]] std::vector<std::string_view> partsOf(std::string_view sentence);
/// The first word without its quotes; the rest is left in `text`.
std::string takeWord(std::string_view& text);
/// What a command that reads one value of an app says, without the verb and the app, which whoever asked knows.
[[nodiscard]] std::string valueIn(std::string_view sentence);

}  // namespace fadeloom::ctl
