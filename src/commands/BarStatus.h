// SPDX-License-Identifier: MIT
// One app in a few words, for the bar of a desktop.
#pragma once

#include <expected>
#include <optional>
#include <string>

namespace fadeloom {

class AudioController;
class Text;

struct BarStatus {
    std::string id{};  // Empty when there is no app to show; so is the rest then.
    std::string name{};
    std::string text{};  // "45%" or "muted"

    friend bool operator==(const BarStatus&, const BarStatus&) = default;
};

/// Of the app that `word` means, else of the first that plays. The error is a sentence for the user, in English.
[[nodiscard]] std::expected<BarStatus, std::string> barStatus(
    const AudioController& controller, const Text& text, const std::optional<std::string>& word);
/// A line of the form that waybar takes: its text, tooltip, classes ("playing" or "silent", "muted", "missing",
/// "recording") and percentage.
[[nodiscard]] std::string waybarLine(const AudioController& controller, const BarStatus& status);

}  // namespace fadeloom
