// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopEntries.h"

#include "platform/linux/BoundedFile.h"
#include "platform/linux/ProgramFiles.h"
#include "platform/linux/WebPage.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>
#include <utility>

namespace fadeloom {

namespace {

constexpr int deepestFolder = 4;
constexpr std::string_view ending = ".desktop";

std::filesystem::file_time_type timeOf(const std::filesystem::path& folder)
{
    std::error_code error;
    const auto time = std::filesystem::last_write_time(folder, error);
    return error ? std::filesystem::file_time_type::min() : time;
}

/// Launchers and interpreters, whose arguments name the actual program.
bool isLauncher(const DesktopEntry& entry)
{
    constexpr std::array<std::string_view, 7> launchers{
        "flatpak", "snap", "wine", "java", "gtk-launch", "xdg-open", "electron"};
    return std::ranges::find(launchers, entry.program.filename().native()) != launchers.end();
}

bool wasGivenArguments(const DesktopEntry& entry, const ProcessProgram& program)
{
    return std::all_of(entry.command.begin() + 1, entry.command.end(), [&](const std::string& argument) {
        return std::ranges::find(program.arguments, argument) != program.arguments.end();
    });
}

/// How well an entry matches a process that runs its program: larger is better.
auto fitness(const DesktopEntry& entry, const ProcessProgram& program)
{
    const bool isExact = wasGivenArguments(entry, program);
    const auto count = static_cast<int>(entry.command.size());
    return std::tuple{isExact, !entry.noDisplay, isExact ? count : -count};
}

}  // namespace

DesktopEntries::DesktopEntries(const LinuxEnvironment& environment)
    : environment_(environment)
{
}

bool DesktopEntries::isCurrent() const
{
    return isRead_ && std::ranges::all_of(folderTimes_, [](const auto& known) {
        return timeOf(known.first) == known.second;
    });
}

void DesktopEntries::refresh()
{
    if (isCurrent())
        return;
    folderTimes_.clear();
    entries_.clear();
    byPath_.clear();
    byName_.clear();
    byWindowClass_.clear();
    for (const auto& folder : environment_.applicationFolders)
        readFolder(folder, "", 0);
    index();
    isRead_ = true;
}

void DesktopEntries::readFolder(const std::filesystem::path& folder, const std::string& idPrefix, int depth)
{
    folderTimes_.emplace(folder, timeOf(folder));
    std::error_code error;
    for (std::filesystem::directory_iterator entry{folder, error}, end; !error && entry != end;
        entry.increment(error)) {
        const std::string name = entry->path().filename();
        std::error_code ignored;
        if (entry->is_directory(ignored)) {
            if (depth < deepestFolder)
                readFolder(entry->path(), idPrefix + name + "-", depth + 1);
        } else if (name.ends_with(ending))
            readFile(entry->path(), idPrefix + name.substr(0, name.size() - ending.size()));
    }
}

void DesktopEntries::readFile(const std::filesystem::path& file, const std::string& id)
{
    if (entries_.contains(id))
        return;  // A folder with higher precedence has it.
    const auto text = readBoundedFile(file, longestDesktopEntry);
    auto entry = text ? parseDesktopEntry(*text, environment_.languages) : std::nullopt;
    if (!entry)
        return;
    entry->id = id;
    entry->file = file;
    if (!entry->command.empty())
        entry->program = findProgram(entry->command.front(), environment_.programFolders);
    std::error_code error;
    if (!entry->program.empty())
        entry->realProgram = std::filesystem::canonical(entry->program, error);
    entries_.emplace(id, std::move(*entry));
}

void DesktopEntries::index()
{
    std::erase_if(entries_, [this](const auto& known) {
        const DesktopEntry& entry = known.second;
        return entry.isHidden || !entry.isApplication
            || (!entry.tryExec.empty() && findProgram(entry.tryExec, environment_.programFolders).empty());
    });
    for (const auto& [id, entry] : entries_) {
        if (!entry.windowClass.empty())
            byWindowClass_.emplace(entry.windowClass, &entry);
        if (entry.program.empty())
            continue;
        byPath_.emplace(entry.program, &entry);
        if (entry.realProgram != entry.program)
            byPath_.emplace(entry.realProgram, &entry);
        byName_.emplace(entry.program.filename(), &entry);
    }
}

const DesktopEntry* DesktopEntries::withID(const std::string& id) const
{
    const auto found = entries_.find(id);
    return found == entries_.end() ? nullptr : &found->second;
}

const DesktopEntry* DesktopEntries::starting(const ProcessProgram& program) const
{
    if (const auto found = byWindowClass_.find(windowClassOf(program.arguments));
        found != byWindowClass_.end())
        return found->second;
    std::vector<const DesktopEntry*> candidates;
    const auto [first, last] = byPath_.equal_range(program.path);
    for (auto each = first; each != last && !program.path.empty(); ++each)
        candidates.push_back(each->second);
    if (candidates.empty())
        for (const auto& [name, entry] : byName_)
            if (program.isCalled(name))
                candidates.push_back(entry);
    std::erase_if(candidates,
        [&](const DesktopEntry* entry) { return isLauncher(*entry) && !wasGivenArguments(*entry, program); });
    // Ties are broken by id.
    const auto best = std::ranges::max_element(candidates, [&](const DesktopEntry* a, const DesktopEntry* b) {
        return fitness(*a, program) < fitness(*b, program);
    });
    return best == candidates.end() ? nullptr : *best;
}

}  // namespace fadeloom
