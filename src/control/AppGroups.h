// SPDX-License-Identifier: MIT
// Groups audio processes by the application that owns them.
#pragma once

#include "control/AppResolver.h"
#include "platform/AudioProcess.h"
#include "platform/Workspace.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace fadeloom {

/// One application with all its audio processes, in the order read.
struct AppGroup {
    RunningApplication owner;
    std::vector<AudioProcess> processes;

    [[nodiscard]] bool isPlaying() const;
    [[nodiscard]] bool isUsingMic() const;
    /// Sorted.
    [[nodiscard]] std::vector<AudioProcessID> processIDs() const;
    /// Unique ids of the devices that its streams would play to without us, sorted.
    [[nodiscard]] std::vector<std::string> ownOutputs() const;
    /// Of the first process with a reason.
    [[nodiscard]] std::optional<OutOfReach> outOfReach() const;
};

/// By bundle identifier.
using AppGroups = std::map<std::string, AppGroup>;

/// Finds the owner of each process, once in its lifetime. Thread: main.
class AppGrouper {
public:
    explicit AppGrouper(const Workspace& workspace)
        : workspace_(workspace)
        , resolver_(workspace)
    {
    }

    /// Excludes our own processes and those without a running application. Queries the list of running applications
    /// only if there is a new process, and then once.
    [[nodiscard]] AppGroups group(std::span<const AudioProcess> processes);

    /// The owner of a process as of the last grouping; null if it was not in that.
    [[nodiscard]] const std::optional<RunningApplication>* knownOwner(ProcessID process) const;

private:
    using Owner = std::optional<RunningApplication>;
    using RunningApps = std::optional<std::vector<RunningApplication>>;

    [[nodiscard]] const Owner& ownerOf(const AudioProcess& process, RunningApps& runningApps);
    void forgetAllBut(std::span<const AudioProcess> processes);

    const Workspace& workspace_;
    AppResolver resolver_;
    std::unordered_map<ProcessID, Owner> owners_;  // Includes processes without an owner.
};

}  // namespace fadeloom
