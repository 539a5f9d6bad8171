// SPDX-License-Identifier: MIT
#include "platform/linux/ProcessTable.h"

#include "platform/linux/BoundedFile.h"
#include "platform/linux/TextParts.h"
#include "platform/linux/UnitNames.h"

#include <algorithm>
#include <charconv>

namespace fadeloom {

namespace {

constexpr std::size_t longestFile = 65536;

template <typename Number>
std::optional<Number> number(std::string_view text)
{
    Number value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional{value} : std::nullopt;
}

/// Parses a "stat" file. False for a process that has exited, or malformed text.
bool readStat(std::string_view text, ProcessInfo& info)
{
    // The name is in parentheses and may itself contain spaces and parentheses.
    const auto open = text.find('(');
    const auto close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return false;
    info.shortName = text.substr(open + 1, close - open - 1);
    const auto fields = parts(text.substr(std::min(close + 2, text.size())), ' ');
    constexpr std::size_t stateAt = 0;
    constexpr std::size_t parentAt = 1;
    constexpr std::size_t startTimeAt = 19;
    if (fields.size() <= startTimeAt || fields[stateAt] == "Z" || fields[stateAt] == "X")
        return false;
    info.parent = number<ProcessID>(fields[parentAt]).value_or(-1);
    const auto startTime = number<std::uint64_t>(fields[startTimeAt]);
    info.startTime = startTime.value_or(0);
    return startTime.has_value();
}

/// The real user of a process, from its "status" file.
std::optional<uid_t> userOf(std::string_view status)
{
    for (const auto line : parts(status, '\n')) {
        if (!line.starts_with("Uid:"))
            continue;
        const auto fields = parts(line, '\t');
        return fields.size() > 1 ? number<uid_t>(fields[1]) : std::nullopt;
    }
    return std::nullopt;
}

std::filesystem::path executableOf(const std::filesystem::path& folder)
{
    std::error_code error;
    std::string executable = std::filesystem::read_symlink(folder / "exe", error);
    constexpr std::string_view mark = " (deleted)";  // Replaced on disk since it was started.
    if (executable.ends_with(mark))
        executable.resize(executable.size() - mark.size());
    return error ? std::filesystem::path{} : std::filesystem::path{executable};
}

std::string flatpakIDOf(const std::filesystem::path& folder)
{
    const auto info = readBoundedFile(folder / "root/.flatpak-info", longestFile);
    if (!info)
        return {};
    bool isInGroup = false;
    for (const auto line : parts(*info, '\n')) {
        if (line.starts_with('['))
            isInGroup = line == "[Application]";
        else if (isInGroup && line.starts_with("name="))
            return std::string{line.substr(5)};
    }
    return {};
}

/// Browsers replace their arguments by a single text, separated by spaces.
std::vector<std::string> argumentsOf(std::string_view commandLine, const std::string& executable)
{
    const auto first = commandLine.substr(0, commandLine.find('\0'));
    const bool isRewritten = !executable.empty() && first.starts_with(executable + " -");
    std::vector<std::string> arguments;
    for (const auto argument : isRewritten ? parts(first, ' ') : parts(commandLine, '\0'))
        arguments.emplace_back(argument);
    return arguments;
}

}  // namespace

ProcessTable::ProcessTable(const LinuxEnvironment& environment)
    : environment_(environment)
{
}

const ProcessInfo* ProcessTable::find(ProcessID pid)
{
    if (pid < 1)
        return nullptr;
    auto known = known_.find(pid);
    if (known == known_.end())
        known = known_.emplace(pid, read(pid)).first;
    return known->second ? &*known->second : nullptr;
}

std::optional<ProcessInfo> ProcessTable::read(ProcessID pid) const
{
    const auto folder = environment_.processes / std::to_string(pid);
    const auto status = readBoundedFile(folder / "status", longestFile);
    if (!status || userOf(*status) != environment_.user)
        return std::nullopt;
    ProcessInfo info;
    info.pid = pid;
    const auto stat = readBoundedFile(folder / "stat", longestFile);
    if (!stat || !readStat(*stat, info))
        return std::nullopt;
    info.executable = executableOf(folder);
    const auto commandLine = readBoundedFile(folder / "cmdline", longestFile).value_or("");
    info.arguments = argumentsOf(commandLine, info.executable.native());
    info.unit = applicationUnit(readBoundedFile(folder / "cgroup", longestFile).value_or(""));
    info.flatpakID = flatpakIDOf(folder);
    return info;
}

std::vector<ProcessID> ProcessTable::pids() const
{
    std::vector<ProcessID> pids;
    std::error_code error;
    for (std::filesystem::directory_iterator entry{environment_.processes, error}, end;
        !error && entry != end; entry.increment(error))
        if (const auto pid = number<ProcessID>(entry->path().filename().native()))
            pids.push_back(*pid);
    std::ranges::sort(pids);
    return pids;
}

}  // namespace fadeloom
