// SPDX-License-Identifier: MIT
#include "app/Console.h"

#include "commands/PrintableText.h"

#include <utility>

namespace fadeloom {
namespace {

// Escape sequences supported by every terminal since the VT100.
constexpr std::string_view eraseToEndOfScreen = "\x1b[J";
constexpr std::string_view eraseToEndOfLine = "\x1b[K";
constexpr std::string_view saveCursor = "\x1b"
                                        "7";
constexpr std::string_view restoreCursor = "\x1b"
                                           "8";

std::string upTo(std::size_t lines)
{
    return "\r\x1b[" + std::to_string(lines) + "A";
}

}  // namespace

void Console::print(std::string_view line)
{
    leaveTable();
    text_ += printable(line) + '\n';
    drawTable();
    finish();
}

void Console::showTable(std::vector<std::string> table)
{
    const bool isInPlace =
        !table_.empty() && table.size() == table_.size() && cursorDistance_ == table_.size();
    if (isInPlace) {
        table_ = std::move(table);
        text_.append(saveCursor).append(upTo(cursorDistance_));
        for (const auto& line : table_)
            text_.append(line).append(eraseToEndOfLine).append("\r\n");
        text_ += restoreCursor;
    } else {
        leaveTable();
        table_ = std::move(table);
        drawTable();
    }
    finish();
}

void Console::noteEnteredLine()
{
    if (!table_.empty())
        ++cursorDistance_;
}

void Console::leaveTable()
{
    if (cursorDistance_ > 0)
        text_.append(upTo(cursorDistance_)).append(eraseToEndOfScreen);
    cursorDistance_ = 0;
}

void Console::drawTable()
{
    for (const auto& line : table_)
        text_.append(line).append("\n");
    cursorDistance_ = table_.size();
}

void Console::finish()
{
    write_(std::exchange(text_, {}));
}

}  // namespace fadeloom
