// SPDX-License-Identifier: MIT
#include "platform/linux/UnitNames.h"

#include "platform/linux/TextParts.h"

#include <algorithm>
#include <optional>

namespace fadeloom {

namespace {

std::optional<int> hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? std::optional{c - 'A' + 10} : std::nullopt;
}

/// Undoes escapes such as "\x2d".
std::string unescaped(std::string_view name)
{
    std::string text;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const auto high = i + 3 < name.size() ? hexDigit(name[i + 2]) : std::nullopt;
        const auto low = i + 3 < name.size() ? hexDigit(name[i + 3]) : std::nullopt;
        if (name[i] == '\\' && i + 3 < name.size() && name[i + 1] == 'x' && high && low) {
            text += static_cast<char>(*high * 16 + *low);
            i += 3;
        } else
            text += name[i];
    }
    return text;
}

std::string_view before(std::string_view text, std::size_t end)
{
    return text.substr(0, std::min(end, text.size()));
}

/// "snap.<package>.<app>.<random>.scope" and "snap.<package>.<app>-<random>.scope" belong to "<package>_<app>".
std::vector<std::string> idsOfSnap(std::string_view unit)
{
    unit.remove_prefix(std::string_view{"snap."}.size());
    const auto dot = unit.find('.');
    const auto package = before(unit, dot);
    if (dot == std::string_view::npos || package.empty())
        return {};
    std::string_view app = unit.substr(dot + 1);
    std::vector<std::string> ids;
    // An app's name has no dot; it may contain dashes, and so may the random part.
    for (app = before(app, app.find('.')); !app.empty(); app = before(app, app.rfind('-'))) {
        ids.push_back(std::string{package} + "_" + std::string{app});
        if (app.rfind('-') == std::string_view::npos)
            break;
    }
    return ids;
}

}  // namespace

std::string applicationUnit(std::string_view groups)
{
    std::string_view unit;
    for (const auto line : parts(groups, '\n')) {
        // "<hierarchy>:<controllers>:<path>"; of several hierarchies only systemd's own names units.
        if (!line.starts_with("0::") && line.find(":name=systemd:") == std::string_view::npos)
            continue;
        for (const auto part : parts(line, '/'))
            if ((part.starts_with("app-") && (part.ends_with(".scope") || part.ends_with(".service")))
                || (part.starts_with("snap.") && part.ends_with(".scope")))
                unit = part;
        if (!unit.empty())
            break;
    }
    return std::string{unit};
}

std::vector<std::string> desktopIDsOfUnit(std::string_view unit)
{
    if (unit.starts_with("snap."))
        return idsOfSnap(unit);
    if (!unit.starts_with("app-"))
        return {};
    unit.remove_prefix(std::string_view{"app-"}.size());
    // A random part follows the id: after the last dash of a scope, after the "@" of a service.
    const bool isScope = unit.ends_with(".scope");
    unit = before(unit, unit.rfind('.'));
    unit = before(unit, unit.rfind(isScope ? '-' : '@'));
    // "<launcher>-<id>" or "<id>": dashes inside either should be escaped, but not every launcher does so.
    std::vector<std::string> ids;
    while (!unit.empty()) {
        ids.push_back(unescaped(unit));
        const auto dash = unit.find('-');
        unit = dash == std::string_view::npos ? std::string_view{} : unit.substr(dash + 1);
    }
    return ids;
}

}  // namespace fadeloom
