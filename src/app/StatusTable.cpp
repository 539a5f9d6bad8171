// SPDX-License-Identifier: MIT
#include "app/StatusTable.h"

#include "commands/PrintableText.h"
#include "control/LevelStore.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace fadeloom {
namespace {

constexpr int volumeWidth = 6;
constexpr int levelWidth = 9;
constexpr int gap = 2;
constexpr int widestText = 40;  // Of a name or an output.

struct Widths {
    int name;
    int output;
};

// The two texts share the width that the numbers leave; the name gets what the output does not need.
Widths widthsFor(std::span<const StatusRow> rows, int columns)
{
    int name = 3;
    int output = 6;
    for (const auto& row : rows) {
        name = std::max(name, displayWidth(printable(row.name)));
        output = std::max(output, displayWidth(printable(row.output)));
    }
    const int room = std::max(0, columns - volumeWidth - levelWidth - 3 * gap);
    name = std::min(name, widestText);
    output = std::min(output, widestText);
    if (name + output > room) {
        output = std::min(output, std::max(room / 2, room - name));
        name = std::min(name, room - output);
    }
    return {name, output};
}

std::string lineOf(const Widths& widths, const std::string& name, const std::string& output,
    const std::string& volume, const std::string& level)
{
    const std::string blanks(gap, ' ');
    return fitted(printable(name), widths.name) + blanks + fitted(printable(output), widths.output) + blanks
        + fitted(volume, volumeWidth, Alignment::right) + blanks
        + fitted(level, levelWidth, Alignment::right);
}

std::string lineOf(const Widths& widths, const StatusRow& row)
{
    return lineOf(widths, row.name, row.output, row.isMuted ? "muted" : percentText(row.volume),
        row.level ? levelText(*row.level) : "-");
}

}  // namespace

std::vector<std::string> statusTable(std::span<const StatusRow> rows, int columns, int lines)
{
    const auto widths = widthsFor(rows, columns);
    const auto room = static_cast<std::size_t>(std::max(lines, 2) - 1);
    const auto shown = rows.size() <= room ? rows.size() : room - 1;

    std::vector<std::string> table = {lineOf(widths, "App", "Output", "Volume", "Level")};
    for (const auto& row : rows.first(shown))
        table.push_back(lineOf(widths, row));
    if (shown < rows.size())
        table.push_back("and " + std::to_string(rows.size() - shown) + " more");
    for (auto& line : table) {
        if (displayWidth(line) > columns)
            line = fitted(line, std::max(columns, 0));
    }
    return table;
}

std::string levelText(float position)
{
    if (!(position > 0))
        return "silent";
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.begin(), buffer.end(), meterDecibels(position), std::chars_format::fixed, 1).ptr;
    return std::string(buffer.begin(), end) + " dB";
}

std::string percentText(float gain)
{
    return std::to_string(std::lround(gain * 100)) + "%";
}

}  // namespace fadeloom
