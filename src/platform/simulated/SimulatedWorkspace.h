// SPDX-License-Identifier: MIT
// The processes and applications of a simulated session.
#pragma once

#include "platform/Workspace.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// The properties of an application; those left out are derived from its name.
struct SimulatedAppTraits {
    std::optional<std::string> bundleID{};  // "com.example." and the name in lower case without spaces.
    std::optional<std::filesystem::path> bundleLocation{};  // "/Applications/<name>.app".
    ActivationPolicy policy = ActivationPolicy::regular;
    ProcessID responsible = -1;  // The process that launched it.
    ProcessID pid = -1;  // -1: assigned automatically.
    std::optional<AppIcon> icon{};
    bool hasName = true;
};

class SimulatedWorkspace final : public Workspace {
public:
    ProcessID ownPid() const override { return ownPid_; }
    std::string ownBundleID() const override { return "com.fadeloom.app"; }
    std::vector<RunningApplication> runningApplications() const override;
    std::optional<RunningApplication> runningApplication(ProcessID pid) const override;
    void findIcon(const RunningApplication& application, std::function<void(const AppIcon&)> found) override;
    bool isTerminated(const RunningApplication& application) const override;
    std::optional<ProcessID> responsiblePid(ProcessID pid) const override;
    /// True for locations that end in ".app".
    bool isApplicationBundle(const std::filesystem::path& location) const override;
    void reveal(const std::filesystem::path& file) override { revealed_.push_back(file); }
    void open(const std::string& url) override { opened_.push_back(url); }
    std::optional<std::string> installedName(const std::string& bundleID) const override;
    void openNewInstance(std::function<void()> reported) override;

    /// Starts an application's process.
    ProcessID launchApp(const std::string& name, const SimulatedAppTraits& traits);
    /// Starts a process that is not an application; `responsible` below 1 if nobody launched it (a daemon).
    ProcessID launchHelper(ProcessID responsible);
    /// Ends a process and those that it is responsible for; returns all their pids.
    std::vector<ProcessID> quit(ProcessID pid);
    [[nodiscard]] bool isRunning(ProcessID pid) const { return processes_.contains(pid); }

    /// Installs an application, without starting it.
    void install(const std::string& bundleID, const std::string& name) { installed_[bundleID] = name; }

    /// Starting another instance of the program fails.
    void failToStart() { canStart_ = false; }
    /// The number of additional instances of the program started.
    [[nodiscard]] int newInstances() const { return newInstances_; }
    /// Completes all requested starts.
    void reportStarts();

    /// The number of queries for running applications.
    [[nodiscard]] int listCount() const { return listCount_; }
    /// The number of icons asked for.
    [[nodiscard]] int iconCount() const { return iconCount_; }
    /// All files shown, in order.
    [[nodiscard]] const std::vector<std::filesystem::path>& revealed() const { return revealed_; }
    /// All URLs opened, in order.
    [[nodiscard]] const std::vector<std::string>& opened() const { return opened_; }

private:
    struct Process {
        std::optional<RunningApplication> application;
        ProcessID responsible = -1;
    };

    ProcessID add(ProcessID wantedPid, Process process);

    static constexpr ProcessID ownPid_ = 900;
    ProcessID lastPid_ = 1000;
    std::uint64_t launchCount_ = 0;
    std::map<ProcessID, Process> processes_;
    mutable int listCount_ = 0;
    int iconCount_ = 0;
    std::vector<std::filesystem::path> revealed_;
    std::vector<std::string> opened_;
    std::map<std::string, std::string> installed_;
    bool canStart_ = true;
    int newInstances_ = 0;
    std::vector<std::function<void()>> askedStarts_;
};

}  // namespace fadeloom
