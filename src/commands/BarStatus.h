// SPDX-License-Identifier: MIT
// A summary of one app, for a desktop's status bar.
#pragma once

#include <expected>
#include <optional>
#include <string>

namespace fadeloom {

class AudioController;
class Text;

struct BarStatus {
    std::string id{};  // Empty if there is no app to show; the rest is empty then too.
    std::string name{};
    std::string text{};  // "45%" or "muted"

    friend bool operator==(const BarStatus&, const BarStatus&) = default;
};

/// Of the app that `word` denotes, otherwise of the first playing one. The error is a sentence for the user, in
/// English.
[[nodiscard]] std::expected<BarStatus, std::string> barStatus(
    const AudioController& controller, const Text& text, const std::optional<std::string>& word);
/// One line of JSON for waybar: text, tooltip, classes ("playing" or "silent", "muted", "missing", "recording") and
/// percentage.
[[nodiscard]] std::string waybarLine(const AudioController& controller, const BarStatus& status);

}  // namespace fadeloom
