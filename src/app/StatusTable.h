// SPDX-License-Identifier: MIT
// The mixer as a text table: one app per line, with its output, its volume and its level.
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
    std::optional<float> level{};  // The meter's position, 0 to 1; nullopt without a tap.

    friend bool operator==(const StatusRow&, const StatusRow&) = default;
};

/// A heading and the rows, each line at most `columns` columns wide. If there are more rows than fit into `lines`, the
/// last line says how many are omitted. Texts are sanitized.
[[nodiscard]] std::vector<std::string> statusTable(std::span<const StatusRow> rows, int columns, int lines);

/// A meter's position as a level: "-12.3 dB"; "silent" at the lower end. Not localized.
[[nodiscard]] std::string levelText(float position);

/// A linear gain as a whole percentage: "50%".
[[nodiscard]] std::string percentText(float gain);

}  // namespace fadeloom
