// SPDX-License-Identifier: MIT
// Which application a process belongs to.
//
// Linux has no such notion, so it is read from traces, the most reliable first: the sandbox a process runs in, the
// systemd unit that its launcher made, the desktop entry that starts its program. A process without any of them
// belongs to the nearest ancestor that has one; failing that, its executable is the application, so that a player
// without a desktop entry is an application as well.
//
// Terminals, shells and services hand nothing down: what they start stands for itself.
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
    ProcessID owner = -1;  // The process that is the application: the outermost one of its kind, or this one.
};

/// As short-lived as its table.
class ApplicationFinder {
public:
    /// Both must outlive this.
    ApplicationFinder(ProcessTable& processes, const DesktopEntries& entries);

    /// Absent for no process of the user's.
    [[nodiscard]] const std::optional<FoundApplication>& find(ProcessID pid);

private:
    /// Whether the process is its parent's program once more, without being an application of its own.
    [[nodiscard]] bool isHelper(const ProcessInfo& process);
    /// What the process itself tells of its application.
    [[nodiscard]] std::optional<FoundApplication> ownTraces(const ProcessInfo& process);
    [[nodiscard]] const DesktopEntry* entryOfUnit(const ProcessInfo& process, const DesktopEntry* ofProgram);
    /// What the process hands down to those it starts.
    [[nodiscard]] std::optional<FoundApplication> inheritance(ProcessID pid);
    [[nodiscard]] std::optional<FoundApplication> decide(ProcessID pid);

    ProcessTable& processes_;
    const DesktopEntries& entries_;
    std::map<ProcessID, std::optional<FoundApplication>> found_;
};

}  // namespace fadeloom
