// SPDX-License-Identifier: MIT
#include "ctl/AnswerText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace fadeloom::ctl {
namespace {

/// The position of the quote that closes the one at `start`; the text's end if there is none.
std::size_t endOfQuotes(std::string_view text, std::size_t start)
{
    for (auto i = start + 1; i < text.size(); ++i) {
        if (text[i] == '\\')
            ++i;
        else if (text[i] == '"')
            return i;
    }
    return text.size();
}

std::string_view withoutPrefix(std::string_view text, std::string_view prefix)
{
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

}  // namespace

std::string quoted(std::string_view word)
{
    std::string text = "\"";
    for (const char byte : word) {
        if (byte == '"' || byte == '\\')
            text += '\\';
        text += byte;
    }
    return text + '"';
}

std::string lineOf(std::span<const std::string> words)
{
    std::string line;
    for (const auto& word : words)
        line += (line.empty() ? "" : " ") + quoted(word);
    return line;
}

Answer Answer::parse(std::string_view line)
{
    constexpr std::array kinds = {std::pair("ok", done), std::pair("usage", usage),
        std::pair("unknown", unknownName), std::pair("denied", denied), std::pair("busy", notRunning)};
    const auto kind = line.substr(0, line.find(' '));
    const auto text = line.substr(std::min(line.size(), kind.size() + 1));
    const auto* const found = std::ranges::find(kinds, kind, [](const auto& each) { return each.first; });
    const auto status = found == kinds.end() ? refused : found->second;
    return {status, withoutPrefix(text, status == done ? "ok " : "error ")};
}

std::vector<std::string_view> partsOf(std::string_view sentence)
{
    std::vector<std::string_view> parts;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < sentence.size(); ++i) {
        if (sentence[i] == '"') {
            i = endOfQuotes(sentence, i);
        } else if (sentence.substr(i).starts_with("; ")) {
            parts.push_back(sentence.substr(begin, i - begin));
            begin = i + 2;
        }
    }
    parts.push_back(sentence.substr(begin));
    return parts;
}

std::string takeWord(std::string_view& text)
{
    std::string word;
    const bool isQuoted = text.starts_with('"');
    const auto end = isQuoted ? endOfQuotes(text, 0) : std::min(text.size(), text.find(' '));
    for (std::size_t i = isQuoted ? 1 : 0; i < end; ++i) {
        if (isQuoted && text[i] == '\\' && i + 1 < end)
            ++i;
        word += text[i];
    }
    text.remove_prefix(std::min(text.size(), end + (isQuoted ? 1 : 0)));
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ')));
    return word;
}

std::string valueIn(std::string_view sentence)
{
    if (partsOf(sentence).size() > 1 || sentence.find(' ') == std::string_view::npos)
        return std::string(sentence);
    auto rest = sentence;
    takeWord(rest);
    takeWord(rest);
    auto value = rest;
    auto word = takeWord(value);
    return value.empty() ? word : std::string(rest);
}

}  // namespace fadeloom::ctl
