// SPDX-License-Identifier: MIT
#include "platform/linux/UserFolders.h"

#include "platform/linux/TextParts.h"

#include <algorithm>
#include <string>

namespace fadeloom {

namespace {

void skipBlanks(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
}

bool skip(std::string_view& text, std::string_view expected)
{
    const bool isThere = text.starts_with(expected);
    if (isThere)
        text.remove_prefix(expected.size());
    return isThere;
}

/// The quoted value that a line assigns to `key`; nullopt for any other line.
std::optional<std::string_view> quotedValue(std::string_view line, std::string_view key)
{
    skipBlanks(line);
    if (!skip(line, key))
        return std::nullopt;
    skipBlanks(line);
    if (!skip(line, "="))
        return std::nullopt;
    skipBlanks(line);
    return skip(line, "\"") ? std::optional{line} : std::nullopt;
}

/// The text up to the closing quote, unescaped; nullopt without that quote.
std::optional<std::string> unquoted(std::string_view value)
{
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '"')
            return text;
        if (value[i] == '\\' && i + 1 < value.size())
            ++i;
        text += value[i];
    }
    return std::nullopt;
}

std::filesystem::path withoutLastSlash(const std::filesystem::path& folder)
{
    return folder.has_filename() ? folder : folder.parent_path();
}

}  // namespace

std::optional<std::filesystem::path> userFolder(
    std::string_view text, std::string_view key, const std::filesystem::path& home)
{
    std::optional<std::filesystem::path> folder;
    for (const auto line : parts(text, '\n')) {
        auto value = quotedValue(line, key);
        if (!value)
            continue;
        const bool isBelowHome = skip(*value, "$HOME");
        const auto path = unquoted(*value);
        if (path && (path->starts_with('/') || (isBelowHome && path->empty())))
            folder = withoutLastSlash((isBelowHome ? home.native() : "") + *path);
    }
    return folder == withoutLastSlash(home) ? std::nullopt : folder;
}

}  // namespace fadeloom
