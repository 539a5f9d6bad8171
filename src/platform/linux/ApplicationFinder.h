// SPDX-License-Identifier: MIT
// Which application a process belongs to.
//
// Linux has no such notion, so it is inferred, from the most reliable source to the least: the sandbox a process runs
// in, the systemd unit created by its launcher, the desktop entry that starts its program. A process without any of
// them belongs to the nearest ancestor that has one; failing that, its executable is the application, so that a player
// without a desktop entry is an application as well.
//
// Terminals, shells and services pass nothing on: what they start is considered on its own.
#pragma once

#include "platform/linux/DesktopEntries.h"
#include "platform/linux/ProcessTable.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace fadeloom {

struct FoundApplication {
    std::string bundleID;
    const DesktopEntry* entry = nullptr;  // Null for an application that is only an executable.
    ProcessID owner = -1;  // The application's process: the outermost one of its kind, or this one.
};

/// Must not outlive its table.
class ApplicationFinder {
public:
    /// Both must outlive this.
    ApplicationFinder(ProcessTable& processes, const DesktopEntries& entries);

    /// nullopt if it is not a process of the user.
    [[nodiscard]] const std::optional<FoundApplication>& find(ProcessID pid);

private:
    /// Whether the process is another instance of its parent's program, without being a separate application.
    [[nodiscard]] bool isHelper(const ProcessInfo& process);
    /// The application that the process itself reveals.
    [[nodiscard]] std::optional<FoundApplication> ownTraces(const ProcessInfo& process);
    [[nodiscard]] const DesktopEntry* entryOfUnit(const ProcessInfo& process, const DesktopEntry* ofProgram);
    /// What children of the process inherit.
    [[nodiscard]] std::optional<FoundApplication> inheritance(ProcessID pid);
    [[nodiscard]] std::optional<FoundApplication> decide(ProcessID pid);

    ProcessTable& processes_;
    const DesktopEntries& entries_;
    std::map<ProcessID, std::optional<FoundApplication>> found_;
};

}  // namespace fadeloom
