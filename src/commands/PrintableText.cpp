// SPDX-License-Identifier: MIT
#include "commands/PrintableText.h"

#include <locale.h>
#include <wchar.h>

#include <cstddef>
#include <optional>

namespace fadeloom {
namespace {

constexpr std::string_view replacement = "\uFFFD";
constexpr std::string_view ellipsis = "\u2026";

struct Character {
    std::string_view bytes;  // At least one.
    std::optional<char32_t> code;  // Absent if the bytes are not UTF-8.
};

// The length of the character that begins with this byte, going by the byte alone; 1 for an invalid lead byte.
std::size_t announcedLength(unsigned char first)
{
    if (first >= 0xF0 && first <= 0xF4)
        return 4;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    return 1;
}

bool isCodePoint(char32_t code, std::size_t length)
{
    if (length == 3)
        return code >= 0x800 && (code < 0xD800 || code > 0xDFFF);
    return length != 4 || (code >= 0x10000 && code <= 0x10FFFF);
}

Character firstCharacter(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80)
        return {text.substr(0, 1), first};
    const auto length = announcedLength(first);
    if (length == 1 || text.size() < length)
        return {text.substr(0, 1), std::nullopt};

    char32_t code = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80)
            return {text.substr(0, 1), std::nullopt};
        code = code << 6 | (byte & 0x3FU);
    }
    if (!isCodePoint(code, length))
        return {text.substr(0, 1), std::nullopt};
    return {text.substr(0, length), code};
}

template <typename Visit>
void forEachCharacter(std::string_view text, Visit visit)
{
    while (!text.empty()) {
        const auto character = firstCharacter(text);
        if (!visit(character))
            return;
        text.remove_prefix(character.bytes.size());
    }
}

bool isControl(char32_t code)
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

// Line and paragraph separators, and bidirectional control characters.
bool isLayoutMark(char32_t code)
{
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x2028 && code <= 0x202E)
        || (code >= 0x2066 && code <= 0x2069) || code == 0xFEFF;
}

// A UTF-8 locale, in which every character has a width, whatever the user's locale is. Never freed.
locale_t characterLocale()
{
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

int widthOf(char32_t code)
{
    const int width = wcwidth(static_cast<wchar_t>(code));
    return width < 0 ? 1 : width;  // A character that the system's tables do not contain yet.
}

}  // namespace

std::string printable(std::string_view text)
{
    std::string result;
    forEachCharacter(text, [&](const Character& character) {
        const bool isHarmless =
            character.code && !isControl(*character.code) && !isLayoutMark(*character.code);
        result += isHarmless ? character.bytes : replacement;
        return true;
    });
    return result;
}

int displayWidth(std::string_view text)
{
    const auto locale = characterLocale();
    const auto previous = locale ? uselocale(locale) : locale_t{};
    int width = 0;
    forEachCharacter(text, [&](const Character& character) {
        width += widthOf(character.code.value_or(U' '));
        return true;
    });
    if (previous)
        uselocale(previous);
    return width;
}

std::string fitted(std::string_view text, int width, Alignment alignment)
{
    std::string result(text);
    int used = displayWidth(text);
    if (used > width) {
        result.clear();
        used = 0;
        forEachCharacter(text, [&](const Character& character) {
            const int next = displayWidth(character.bytes);
            if (used + next > width - 1)  // The last column is for the ellipsis.
                return false;
            result += character.bytes;
            used += next;
            return true;
        });
        if (width > 0) {
            result += ellipsis;
            ++used;
        }
    }
    const std::string blanks(static_cast<std::size_t>(width - used), ' ');
    return alignment == Alignment::left ? result + blanks : blanks + result;
}

std::string asWord(std::string_view text)
{
    auto safe = printable(text);
    if (!safe.empty() && safe.find_first_of(" \"\\") == std::string::npos)
        return safe;
    std::string result = "\"";
    for (const char byte : safe) {
        if (byte == '"' || byte == '\\')
            result += '\\';
        result += byte;
    }
    return result + '"';
}

}  // namespace fadeloom
