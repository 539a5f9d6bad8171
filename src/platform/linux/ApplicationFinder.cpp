// SPDX-License-Identifier: MIT
#include "platform/linux/ApplicationFinder.h"

#include "platform/linux/ProcessProgram.h"
#include "platform/linux/SafeText.h"
#include "platform/linux/UnitNames.h"

namespace fadeloom {

ApplicationFinder::ApplicationFinder(ProcessTable& processes, const DesktopEntries& entries)
    : processes_(processes)
    , entries_(entries)
{
}

const std::optional<FoundApplication>& ApplicationFinder::find(ProcessID pid)
{
    // Inserted before recursing: terminates on a cycle of parents, which a changing process table can show.
    const auto [known, isNew] = found_.try_emplace(pid);
    if (isNew)
        known->second = decide(pid);
    return known->second;
}

std::optional<FoundApplication> ApplicationFinder::decide(ProcessID pid)
{
    const ProcessInfo* const process = processes_.find(pid);
    if (process == nullptr)
        return std::nullopt;
    const auto& parent = find(process->parent);
    auto application = isHelper(*process) ? parent : ownTraces(*process);
    if (!application)
        application = inheritance(process->parent);
    if (!application)
        application = {safeText(programOf(*process).names.front()), nullptr, pid};
    if (parent && parent->bundleID == application->bundleID)
        application->owner = parent->owner;
    return application;
}

// A browser restarts itself for its helpers, without the arguments that identify its web app.
bool ApplicationFinder::isHelper(const ProcessInfo& process)
{
    const ProcessInfo* const parent = processes_.find(process.parent);
    if (parent == nullptr || process.executable.empty() || process.executable != parent->executable
        || process.unit != parent->unit || programOf(process).path != programOf(*parent).path)
        return false;
    const auto& application = find(process.parent);
    return application && application->entry != nullptr;
}

std::optional<FoundApplication> ApplicationFinder::ownTraces(const ProcessInfo& process)
{
    if (!process.flatpakID.empty())
        return FoundApplication{safeText(process.flatpakID), entries_.withID(process.flatpakID), process.pid};
    const ProcessProgram program = programOf(process);
    const DesktopEntry* const ofProgram = program.isInterpreter ? nullptr : entries_.starting(program);
    const DesktopEntry* const ofUnit = entryOfUnit(process, ofProgram);
    const DesktopEntry* const entry = ofUnit != nullptr ? ofUnit : ofProgram;
    if (entry == nullptr)
        return std::nullopt;
    return FoundApplication{safeText(entry->id), entry, process.pid};
}

const DesktopEntry* ApplicationFinder::entryOfUnit(const ProcessInfo& process, const DesktopEntry* ofProgram)
{
    for (const std::string& id : desktopIDsOfUnit(process.unit)) {
        const DesktopEntry* const entry = entries_.withID(id);
        if (entry == nullptr)
            continue;
        if (entry->answersForChildren())
            return entry;
        // A unit is shared by everything started in it: here only the first process is the application itself.
        if (entry->isTerminalEmulator || entry->wantsTerminal)
            return entry == ofProgram ? entry : nullptr;
        const ProcessInfo* const parent = processes_.find(process.parent);
        return parent == nullptr || parent->unit != process.unit ? entry : nullptr;
    }
    return nullptr;
}

std::optional<FoundApplication> ApplicationFinder::inheritance(ProcessID pid)
{
    for (int generation = 0; generation < 64; ++generation) {
        const ProcessInfo* const process = processes_.find(pid);
        if (process == nullptr)
            break;
        const auto& application = find(pid);
        const DesktopEntry* const entry = application ? application->entry : nullptr;
        if (entry != nullptr && entry->isTerminalEmulator)
            break;
        if (entry != nullptr && entry->answersForChildren())
            return application;
        pid = process->parent;
    }
    return std::nullopt;
}

}  // namespace fadeloom
