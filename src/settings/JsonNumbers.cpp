// SPDX-License-Identifier: MIT
#include "settings/JsonNumbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <locale>
#include <sstream>

namespace fadeloom {

namespace {

constexpr std::string_view largestFloat = "3.4028235e38";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view numberCharacters = "0123456789+-.eE";

/// Removes leading characters of `set` from `text`; returns how many.
std::size_t skip(std::string_view& text, std::string_view set)
{
    const std::size_t count = std::min(text.find_first_not_of(set), text.size());
    text.remove_prefix(count);
    return count;
}

bool skipOne(std::string_view& text, std::string_view set)
{
    const bool isThere = !text.empty() && set.contains(text.front());
    if (isThere)
        text.remove_prefix(1);
    return isThere;
}

bool isNumber(std::string_view text)
{
    skipOne(text, "-");
    if (!skipOne(text, "0") && skip(text, digits) == 0)
        return false;
    if (skipOne(text, ".") && skip(text, digits) == 0)
        return false;
    if (skipOne(text, "eE")) {
        skipOne(text, "+-");
        if (skip(text, digits) == 0)
            return false;
    }
    return text.empty();
}

bool overflows(std::string_view number)
{
    // A number without an exponent needs more digits than this to overflow.
    constexpr std::size_t safeLength = 38;
    if (number.size() < safeLength && number.find_first_of("eE") == std::string_view::npos)
        return false;
    // A stream with the classic locale is locale-independent, and distinguishes overflow from underflow.
    std::istringstream stream{std::string(number)};
    stream.imbue(std::locale::classic());
    float value = 0;
    stream >> value;
    return stream.fail() && std::abs(value) == std::numeric_limits<float>::max();
}

/// The length of the string literal at the start of `text`, quotes included.
std::size_t stringLength(std::string_view text)
{
    std::size_t end = 1;
    while (end < text.size() && text[end] != '"')
        end += text[end] == '\\' ? 2 : 1;
    return std::min(end + 1, text.size());
}

}  // namespace

std::string withFiniteNumbers(std::string_view json)
{
    std::string result;
    result.reserve(json.size());
    while (!json.empty()) {
        std::size_t length = 1;
        if (json.front() == '"') {
            length = stringLength(json);
        } else if (numberCharacters.contains(json.front())) {
            length = std::min(json.find_first_not_of(numberCharacters), json.size());
            const auto token = json.substr(0, length);
            if (isNumber(token) && overflows(token)) {
                result += token.front() == '-' ? "-" : "";
                result += largestFloat;
                json.remove_prefix(length);
                continue;
            }
        }
        result += json.substr(0, length);
        json.remove_prefix(length);
    }
    return result;
}

}  // namespace fadeloom
