// SPDX-License-Identifier: MIT
// The user's processes, read from the process file system, each at most once in the lifetime of a table.
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
    std::uint64_t startTime = 0;  // Ticks since boot: distinguishes processes that reuse a pid.
    std::string shortName{};  // At most 15 bytes, chosen by the process.
    std::filesystem::path executable{};  // Empty if the system does not report it.
    std::vector<std::string> arguments{};  // The first is the name that it was started with.
    std::string unit{};  // The systemd unit created for its application; empty if there is none.
    std::string flatpakID{};  // Empty outside of a Flatpak sandbox.
};

/// A short-lived snapshot. Processes of other users, and those that exit meanwhile, are missing.
class ProcessTable {
public:
    /// `environment` must outlive this.
    explicit ProcessTable(const LinuxEnvironment& environment);

    /// Null if it is not a process of the user. The pointer is valid for the lifetime of the table.
    [[nodiscard]] const ProcessInfo* find(ProcessID pid);
    /// All pids of the system, in order, of any user.
    [[nodiscard]] std::vector<ProcessID> pids() const;

private:
    [[nodiscard]] std::optional<ProcessInfo> read(ProcessID pid) const;

    const LinuxEnvironment& environment_;
    std::map<ProcessID, std::optional<ProcessInfo>> known_;
};

}  // namespace fadeloom
