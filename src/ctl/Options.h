// SPDX-License-Identifier: MIT
// What stands before the verb.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string_view>

namespace fadeloom::ctl {

struct Options {
    enum class Form { text, json, waybar };

    bool isQuiet = false;
    Form form = Form::text;
    std::chrono::seconds wait{0};
};

/// Takes the options off the front of `words`; absent when there is one that is not known.
[[nodiscard]] std::optional<Options> takeOptions(std::span<const std::string_view>& words);

}  // namespace fadeloom::ctl
