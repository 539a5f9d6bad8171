// SPDX-License-Identifier: MIT
// Where the program's lines go; on a terminal with a table below them that is kept up to date.
//
// The table stands right above the line on which the user types. It is taken away for each new line and put back
// below it; while its height stays the same, it is renewed without touching what is being typed.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// Thread: main.
class Console {
public:
    /// `out` must outlive this. What cannot be written is lost, and nothing else happens.
    explicit Console(std::ostream& out)
        : out_(out)
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

    std::ostream& out_;
    std::vector<std::string> table_;
    std::size_t cursorDistance_ = 0;  // Lines from the table's first one down to the cursor.
};

}  // namespace fadeloom
