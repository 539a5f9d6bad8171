// SPDX-License-Identifier: MIT
#include "commands/LineWords.h"

#include <cstddef>

namespace fadeloom {

std::expected<std::vector<std::string>, std::string> wordsOf(std::string_view line)
{
    constexpr std::string_view blanks = " \t\r";
    std::vector<std::string> words;
    bool isInWord = false;
    bool isQuoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char byte = line[i];
        if (!isQuoted && blanks.find(byte) != std::string_view::npos) {
            isInWord = false;
            continue;
        }
        if (!isInWord)
            words.emplace_back();
        isInWord = true;
        if (byte == '"')
            isQuoted = !isQuoted;
        else if (isQuoted && byte == '\\' && i + 1 < line.size())
            words.back() += line[++i];
        else
            words.back() += byte;
    }
    if (isQuoted)
        return std::unexpected("a double quote is not closed");
    return words;
}

}  // namespace fadeloom
