// SPDX-License-Identifier: MIT
// The mixer as lines of text: one app a line, with its output, its volume and how loud it is.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace fadeloom {

struct StatusRow {
    std::string name;
    std::string output;  // The device's name, or why there is none.
    float volume = 1;  // Linear.
    bool isMuted = false;
    std::optional<float> level{};  // Where its meter stands, 0 to 1; absent without a tap.

    friend bool operator==(const StatusRow&, const StatusRow&) = default;
};

/// A heading and the rows, each line at most `columns` columns wide. Of more rows than `lines` has room for, the last
/// line says how many are left out. Texts are made harmless.
[[nodiscard]] std::vector<std::string> statusTable(std::span<const StatusRow> rows, int columns, int lines);

/// A meter's position as a level: "-12.3 dB"; "silent" at its lower end. The same in every language.
[[nodiscard]] std::string levelText(float position);

/// A linear gain as a whole percentage: "50%".
[[nodiscard]] std::string percentText(float gain);

}  // namespace fadeloom
