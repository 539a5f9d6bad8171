// SPDX-License-Identifier: MIT
// The applications of a Mac.
#pragma once

#include "platform/Workspace.h"
#include "platform/macos/ResponsibleProcess.h"

#include <memory>

namespace fadeloom {

class AppIconFiles;

class AppKitWorkspace final : public Workspace {
public:
    /// `iconFolder`: where application icons are cached while the program runs.
    explicit AppKitWorkspace(std::filesystem::path iconFolder);
    AppKitWorkspace(const AppKitWorkspace&) = delete;
    AppKitWorkspace& operator=(const AppKitWorkspace&) = delete;
    ~AppKitWorkspace() override;

    ProcessID ownPid() const override;
    std::string ownBundleID() const override;
    std::vector<RunningApplication> runningApplications() const override;
    std::optional<RunningApplication> runningApplication(ProcessID pid) const override;
    void findIcon(const RunningApplication& application, std::function<void(const AppIcon&)> found) override;
    bool isTerminated(const RunningApplication& application) const override;
    std::optional<ProcessID> responsiblePid(ProcessID pid) const override;
    bool isApplicationBundle(const std::filesystem::path& location) const override;
    void reveal(const std::filesystem::path& file) override;
    void open(const std::string& url) override;
    std::optional<std::string> installedName(const std::string& bundleID) const override;
    void openNewInstance(std::function<void()> reported) override;

private:
    const ResponsibleProcess responsibleProcess_;
    const std::unique_ptr<AppIconFiles> icons_;
};

}  // namespace fadeloom
