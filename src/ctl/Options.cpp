// SPDX-License-Identifier: MIT
#include "ctl/Options.h"

#include <charconv>

namespace fadeloom::ctl {

using namespace std::chrono_literals;

std::optional<Options> takeOptions(std::span<const std::string_view>& words)
{
    constexpr std::string_view waitPrefix = "--wait=";
    Options options;
    for (; !words.empty() && words.front().starts_with("--"); words = words.subspan(1)) {
        const auto word = words.front();
        const auto* const end = word.data() + word.size();
        int seconds = 0;
        if (word == "--quiet")
            options.isQuiet = true;
        else if (word == "--json")
            options.form = Options::Form::json;
        else if (word == "--waybar")
            options.form = Options::Form::waybar;
        else if (word == "--wait")
            options.wait = 24h * 365;
        else if (word.starts_with(waitPrefix)
            && std::from_chars(word.data() + waitPrefix.size(), end, seconds).ptr == end && seconds >= 0)
            options.wait = std::chrono::seconds(seconds);
        else
            return std::nullopt;
    }
    return options;
}

}  // namespace fadeloom::ctl
