// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopEntry.h"

#include "platform/linux/WebPage.h"

#include <algorithm>
#include <map>

namespace fadeloom {

namespace {

using Values = std::map<std::string, std::string, std::less<>>;

std::string_view trimmed(std::string_view text)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string unescaped(std::string_view value)
{
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (const char escaped = value[++i]) {
        case 's':
            text += ' ';
            break;
        case 'n':
            text += '\n';
            break;
        case 't':
            text += '\t';
            break;
        case 'r':
            text += '\r';
            break;
        case '\\':
            text += '\\';
            break;
        default:
            text += '\\';
            text += escaped;  // Not an escape of this format; kept for the next parser.
        }
    }
    return text;
}

std::string escaped(std::string_view text)
{
    std::string value;
    for (const char c : text)
        switch (c) {
        case '\n':
            value += R"(\n)";
            break;
        case '\t':
            value += R"(\t)";
            break;
        case '\r':
            value += R"(\r)";
            break;
        case '\\':
            value += R"(\\)";
            break;
        default:
            value += c;
        }
    return value;
}

/// The keys and values of one group; the first of two equal keys counts. nullopt if there is no such group.
std::optional<Values> valuesOfGroup(std::string_view text, std::string_view group)
{
    std::optional<Values> values;
    bool isInGroup = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.starts_with('[') && line.ends_with(']')) {
            isInGroup = !values && line.substr(1, line.size() - 2) == group;
            if (isInGroup)
                values.emplace();
            continue;
        }
        const auto equals = line.find('=');
        if (isInGroup && !line.starts_with('#') && equals != std::string_view::npos)
            values->emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
    return values;
}

std::string text(const Values& values, std::string_view key)
{
    const auto found = values.find(key);
    return found == values.end() ? std::string{} : unescaped(found->second);
}

bool is(std::string_view wanted, const Values& values, std::string_view key)
{
    const auto found = values.find(key);
    return found != values.end() && found->second == wanted;
}

bool isTrue(const Values& values, std::string_view key)
{
    return is("true", values, key);
}

std::optional<std::string> localizedName(const Values& values, const std::vector<std::string>& languages)
{
    for (const std::string& language : languages)
        if (auto name = text(values, "Name[" + language + "]"); !name.empty())
            return name;
    auto name = text(values, "Name");
    return name.empty() ? std::nullopt : std::optional{std::move(name)};
}

bool hasCategory(const Values& values, std::string_view wanted)
{
    return (";" + text(values, "Categories") + ";").find(";" + std::string{wanted} + ";")
        != std::string::npos;
}

/// One argument of an "Exec" line.
struct Argument {
    std::string text;
    bool hasFieldCode = false;
};

/// Removes the next argument from the start of `line`, which does not begin with a space.
Argument takeArgument(std::string_view& line)
{
    Argument argument;
    bool isQuoted = false;
    std::size_t i = 0;
    for (; i < line.size() && (isQuoted || line[i] != ' '); ++i) {
        const char c = line[i];
        if (c == '"')
            isQuoted = !isQuoted;
        else if (c == '\\' && isQuoted && i + 1 < line.size())
            argument.text += line[++i];
        else if (c == '%' && i + 1 < line.size() && line[i + 1] == '%') {
            argument.text += '%';
            ++i;
        } else {
            argument.hasFieldCode = argument.hasFieldCode || c == '%';
            argument.text += c;
        }
    }
    line.remove_prefix(i);
    return argument;
}

void dropEnvironment(std::vector<std::string>& command)
{
    if (command.empty() || std::filesystem::path{command.front()}.filename() != "env")
        return;
    const auto program = std::find_if(command.begin() + 1, command.end(),
        [](const std::string& argument) { return argument.find('=') == std::string::npos; });
    if (program != command.end())  // Else "env" is the program.
        command.erase(command.begin(), program);
}

}  // namespace

std::vector<std::string> parseExec(std::string_view line)
{
    std::vector<std::string> command;
    while (true) {
        while (line.starts_with(' '))
            line.remove_prefix(1);
        if (line.empty())
            break;
        Argument argument = takeArgument(line);
        // The portal's markers around forwarded files ("@@u %U @@") are a kind of field codes.
        if (!argument.hasFieldCode && !argument.text.starts_with("@@"))
            command.push_back(std::move(argument.text));
    }
    dropEnvironment(command);
    return command;
}

std::string execValue(std::string_view program)
{
    std::string argument = "\"";
    for (const char c : program) {
        if (std::string_view{"\"`$\\"}.find(c) != std::string_view::npos)
            argument += '\\';
        else if (c == '%')
            argument += '%';
        argument += c;
    }
    return escaped(argument + '"');
}

std::optional<DesktopEntry> parseDesktopEntry(
    std::string_view content, const std::vector<std::string>& languages)
{
    const auto values = valuesOfGroup(content, "Desktop Entry");
    if (!values)
        return std::nullopt;
    DesktopEntry entry;
    entry.isApplication = text(*values, "Type") == "Application";
    entry.name = localizedName(*values, languages);
    entry.icon = text(*values, "Icon");
    entry.tryExec = text(*values, "TryExec");
    entry.command = parseExec(text(*values, "Exec"));
    entry.windowClass = text(*values, "StartupWMClass");
    entry.site = hostOf(text(*values, "X-WebApp-URL"));
    if (entry.site.empty())
        entry.site = hostOfExec(content);
    entry.chromiumID = chromiumIDOf(entry.command);
    entry.noDisplay = isTrue(*values, "NoDisplay");
    entry.isHidden = isTrue(*values, "Hidden");
    entry.startsAtLogin = !is("false", *values, "X-GNOME-Autostart-enabled");
    entry.wantsTerminal = isTrue(*values, "Terminal");
    entry.isTerminalEmulator = hasCategory(*values, "TerminalEmulator");
    return entry;
}

}  // namespace fadeloom
