// SPDX-License-Identifier: MIT
// The user's processes, read from the process file system, each at most once in the life of a table.
#pragma once

#include "platform/Workspace.h"
#include "platform/linux/LinuxEnvironment.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

struct ProcessInfo {
    ProcessID pid = -1;
    ProcessID parent = -1;
    std::uint64_t startTime = 0;  // Ticks since the machine started: tells processes apart that share a pid.
    std::string shortName{};  // At most 15 bytes, chosen by the process.
    std::filesystem::path executable{};  // Empty when the system does not tell.
    std::vector<std::string> arguments{};  // The first is the name it was called by.
    std::string unit{};  // The systemd unit that was made for its application; empty for none.
    std::string flatpakID{};  // Empty outside of a Flatpak sandbox.
};

/// A short-lived view. Processes of other users, and those that end meanwhile, are absent.
class ProcessTable {
public:
    /// `environment` must outlive this.
    explicit ProcessTable(const LinuxEnvironment& environment);

    /// Null for no process of the user's. The pointer lives as long as the table.
    [[nodiscard]] const ProcessInfo* find(ProcessID pid);
    /// Every number in the table of the system, in order, whoever's process it is.
    [[nodiscard]] std::vector<ProcessID> pids() const;

private:
    [[nodiscard]] std::optional<ProcessInfo> read(ProcessID pid) const;

    const LinuxEnvironment& environment_;
    std::map<ProcessID, std::optional<ProcessInfo>> known_;
};

}  // namespace fadeloom
