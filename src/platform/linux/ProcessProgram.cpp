// SPDX-License-Identifier: MIT
#include "platform/linux/ProcessProgram.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace fadeloom {

namespace {

constexpr std::size_t cutNameLength = 15;

std::string fileName(std::string_view path)
{
    return std::string{path.substr(path.find_last_of('/') + 1)};
}

/// Whether a program is a script interpreter; "python3.11" counts as "python".
bool isInterpreter(std::string_view name)
{
    constexpr std::array<std::string_view, 14> interpreters{"bash", "dash", "fish", "gjs", "guile", "ksh",
        "lua", "node", "perl", "php", "python", "ruby", "sh", "zsh"};
    name = name.substr(0, name.find_last_not_of("0123456789.") + 1);
    return std::ranges::find(interpreters, name) != interpreters.end();
}

/// The index of the script among an interpreter's arguments; their count if there is none.
std::size_t scriptAt(const std::vector<std::string>& arguments)
{
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "-c" || arguments[i] == "-e")
            break;
        if (!arguments[i].starts_with('-'))
            return i;
    }
    return arguments.size();
}

void addName(std::vector<std::string>& names, std::string name)
{
    if (!name.empty() && std::ranges::find(names, name) == names.end())
        names.push_back(std::move(name));
}

}  // namespace

bool ProcessProgram::isCalled(const std::string& name) const
{
    return std::ranges::any_of(names, [&](const std::string& each) {
        return each == name || (each.size() == cutNameLength && name.starts_with(each));
    });
}

ProcessProgram programOf(const ProcessInfo& process)
{
    ProcessProgram program;
    const auto& arguments = process.arguments;
    const std::string executableName = process.executable.filename();
    const bool runsScripts = isInterpreter(executableName);
    const std::size_t script = runsScripts ? scriptAt(arguments) : arguments.size();
    program.isInterpreter = runsScripts && script == arguments.size();
    if (script < arguments.size()) {
        if (arguments[script].starts_with('/'))
            program.path = arguments[script];
        addName(program.names, fileName(arguments[script]));
        program.arguments.assign(
            arguments.begin() + static_cast<std::ptrdiff_t>(script) + 1, arguments.end());
    } else {
        program.path = process.executable;
        addName(program.names, executableName);
        if (!arguments.empty()) {
            // A login shell's name begins with a dash.
            const auto calledBy = fileName(arguments.front());
            addName(program.names, calledBy.starts_with('-') ? calledBy.substr(1) : calledBy);
            program.arguments.assign(arguments.begin() + 1, arguments.end());
        }
        addName(program.names, process.shortName);
    }
    if (program.names.empty())
        program.names.emplace_back("?");
    return program;
}

}  // namespace fadeloom
