// SPDX-License-Identifier: MIT
// The options before the verb.
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

/// Removes the leading options from `words`; nullopt if one is unknown.
[[nodiscard]] std::optional<Options> takeOptions(std::span<const std::string_view>& words);

}  // namespace fadeloom::ctl
