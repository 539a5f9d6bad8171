// SPDX-License-Identifier: MIT
// The applications of a Linux session: desktop entries, or executables without one.
#pragma once

#include "platform/Workspace.h"
#include "platform/linux/DesktopEntries.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/ProgramFiles.h"

#include <string>

namespace fadeloom {

class ApplicationFinder;
class FileManager;
class ProcessTable;

/// An application's bundle identifier is its desktop id, or the name of its executable; its bundle location is the
/// desktop entry's file, or the executable. Only the user's own processes are visible. ApplicationFinder.h describes
/// how a process's application is found.
class LinuxWorkspace final : public Workspace {
public:
    /// `fileManager` must outlive this. `ownProgram`: how to start another instance of this program.
    LinuxWorkspace(LinuxEnvironment environment, FileManager& fileManager,
        std::string ownBundleID = "com.fadeloom.app", StartCommand ownProgram = ownCommand());
    LinuxWorkspace(const LinuxWorkspace&) = delete;
    LinuxWorkspace& operator=(const LinuxWorkspace&) = delete;

    ProcessID ownPid() const override;
    std::string ownBundleID() const override { return ownBundleID_; }
    std::vector<RunningApplication> runningApplications() const override;
    std::optional<RunningApplication> runningApplication(ProcessID pid) const override;
    bool isTerminated(const RunningApplication& application) const override;
    std::optional<ProcessID> responsiblePid(ProcessID pid) const override;
    bool isApplicationBundle(const std::filesystem::path& location) const override;
    void reveal(const std::filesystem::path& file) override;
    void open(const std::string& url) override;
    std::optional<std::string> installedName(const std::string& bundleID) const override;
    /// The desktop entry of an installed application.
    [[nodiscard]] std::optional<DesktopEntry> desktopEntry(const std::string& bundleID) const;
    /// Started with this process's arguments; reports before it returns.
    void openNewInstance(std::function<void()> reported) override;

    /// The bundle identifier of a process's application; empty if it is not a process of the user. `portalAppID`: the
    /// audio server's application id for a sandboxed client, whose pid may be meaningless outside; takes precedence
    /// unless empty. Thread: main, or the one thread that exclusively uses this object.
    [[nodiscard]] std::string bundleIdentifier(ProcessID pid, const std::string& portalAppID) const;

private:
    [[nodiscard]] RunningApplication describe(
        ApplicationFinder& finder, ProcessTable& processes, ProcessID pid) const;

    const LinuxEnvironment environment_;
    FileManager& fileManager_;
    const std::string ownBundleID_;
    const StartCommand ownProgram_;  // Determined at startup: an update may replace the file.
    mutable DesktopEntries entries_{environment_};  // Refreshed by every query.
};

}  // namespace fadeloom
