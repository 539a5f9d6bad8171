// SPDX-License-Identifier: MIT
// What the program stands on when it is at home on Linux.
#pragma once

#include "app/DesktopLinux.h"
#include "app/PlatformLinux.h"
#include "app/SecondStart.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/SyslogSystemLog.h"
#include "platform/linux/Variables.h"

#include <utility>

namespace fadeloom {

using HomeDesktop = DesktopLinux;
using HomeFolders = XdgFolders;
using HomeLog = SyslogSystemLog;
using HomePanel = PanelLinux;
using HomePlatform = PlatformLinux;

/// The user's applications and files, for a program that is on no platform of this machine.
class HomeWorkspace {
public:
    [[nodiscard]] Workspace& workspace() { return workspace_; }

private:
    SyslogSystemLog log_;
    FileManager fileManager_{log_};
    LinuxWorkspace workspace_{linuxEnvironment(processVariables()), fileManager_};
};

/// This instance among those of the user's session.
class HomeInstance {
public:
    using Actions = SingleInstance::Actions;

    /// Becomes the one instance; else asks the other one, to show its panel if `wantsPanel`, and tells how that went.
    [[nodiscard]] std::optional<EarlyEnd> claim(bool wantsPanel)
    {
        const auto request = wantsPanel ? InstanceRequest::open : InstanceRequest::ping;
        return secondStart(instance_.claim(request), request);
    }
    /// What is done from now on when others ask.
    void serve(Actions actions) { instance_.serve(std::move(actions)); }
    /// From now on others are told to wait for the end.
    void beginEnding() { instance_.beginEnding(); }

private:
    SingleInstance instance_{instanceFolder()};
};

}  // namespace fadeloom
