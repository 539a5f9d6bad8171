// SPDX-License-Identifier: MIT
// The user's applications and files on Linux.
#pragma once

#include "platform/linux/FileManager.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/SyslogSystemLog.h"
#include "platform/linux/Variables.h"

namespace fadeloom {

/// The user's applications and files, for a program that does not run on this machine's platform.
class HomeWorkspace {
public:
    [[nodiscard]] Workspace& workspace() { return workspace_; }

private:
    SyslogSystemLog log_;
    FileManager fileManager_{log_};
    LinuxWorkspace workspace_{linuxEnvironment(processVariables()), fileManager_};
};

}  // namespace fadeloom
