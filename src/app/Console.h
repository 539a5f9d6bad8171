// SPDX-License-Identifier: MIT
// The program's output; on a terminal with a live table below the lines.
//
// The table is right above the line on which the user types. It is removed for each new line and redrawn below it;
// while its height is unchanged, it is updated without touching the line being typed.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fadeloom {

/// Thread: main.
class Console {
public:
    /// Receives output, always whole lines with the table's escape sequences; must not block.
    using Write = std::function<void(std::string text)>;

    explicit Console(Write write)
        : write_(std::move(write))
    {
    }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Prints one line, sanitized, immediately.
    void print(std::string_view line);
    /// Replaces the table. Only on a terminal. `table`: printable lines, each narrower than the terminal, fewer than
    /// its height.
    void showTable(std::vector<std::string> table);
    /// The user has pressed Return on the same terminal, which moves the cursor down by one line.
    void noteEnteredLine();

private:
    void leaveTable();
    void drawTable();
    void finish();

    const Write write_;
    std::string text_;  // Pending output.
    std::vector<std::string> table_;
    std::size_t cursorDistance_ = 0;  // Lines from the top of the table down to the cursor.
};

}  // namespace fadeloom
