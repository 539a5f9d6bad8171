// SPDX-License-Identifier: MIT
// Audio processes, grouped by the application that owns them.
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

/// One application with every audio process of its own, in the order read.
struct AppGroup {
    RunningApplication owner;
    std::vector<AudioProcess> processes;

    [[nodiscard]] bool isPlaying() const;
    [[nodiscard]] bool isUsingMic() const;
    /// Ascending.
    [[nodiscard]] std::vector<AudioProcessID> processIDs() const;
    /// Unique ids of the devices that its streams would play to without us, ascending.
    [[nodiscard]] std::vector<std::string> ownOutputs() const;
    /// Of the first process that has a reason.
    [[nodiscard]] std::optional<OutOfReach> outOfReach() const;
};

/// By bundle identifier.
using AppGroups = std::map<std::string, AppGroup>;

/// Finds the owner of each process, once for as long as the process is there. Thread: main.
class AppGrouper {
public:
    explicit AppGrouper(const Workspace& workspace)
        : workspace_(workspace)
        , resolver_(workspace)
    {
    }

    /// Leaves out our own processes and those that belong to no application which runs. Asks for the list of running
    /// applications only when a process is new, and then once.
    [[nodiscard]] AppGroups group(std::span<const AudioProcess> processes);

private:
    using Owner = std::optional<RunningApplication>;
    using RunningApps = std::optional<std::vector<RunningApplication>>;

    [[nodiscard]] const Owner& ownerOf(const AudioProcess& process, RunningApps& runningApps);
    void forgetAllBut(std::span<const AudioProcess> processes);

    const Workspace& workspace_;
    AppResolver resolver_;
    std::unordered_map<ProcessID, Owner> owners_;  // That a process has no owner is remembered too.
};

}  // namespace fadeloom
