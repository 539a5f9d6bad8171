// SPDX-License-Identifier: MIT
// Where the program's lines go; on a terminal with a table below them that is kept up to date.
//
// The table stands right above the line on which the user types. It is taken away for each new line and put back
// below it; while its height stays the same, it is renewed without touching what is being typed.
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
    /// Takes what is to be written, a whole number of lines with a table's commands, without waiting for anybody.
    using Write = std::function<void(std::string text)>;

    explicit Console(Write write)
        : write_(std::move(write))
    {
    }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Writes one line, made harmless, at once.
    void print(std::string_view line);
    /// Puts a table in place of the last one. Only for a terminal. `table`: printable lines, each narrower than the
    /// terminal, all together less than its height.
    void showTable(std::vector<std::string> table);
    /// The user has ended a line on the same terminal, which moves the cursor down by one.
    void noteEnteredLine();

private:
    void leaveTable();
    void drawTable();
    void finish();

    const Write write_;
    std::string text_;  // Not yet written.
    std::vector<std::string> table_;
    std::size_t cursorDistance_ = 0;  // Lines from the table's first one down to the cursor.
};

}  // namespace fadeloom
