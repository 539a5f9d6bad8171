// SPDX-License-Identifier: MIT
// The user's applications and files on macOS.
#pragma once

#include "app/macos/SystemPlatform.h"

namespace fadeloom {

/// The user's applications and files, for a program that does not run on this machine's platform.
class HomeWorkspace {
public:
    [[nodiscard]] Workspace& workspace() { return workspace_; }

private:
    FoundationFolders folders_;
    AppKitWorkspace workspace_{iconFolder(folders_)};
};

}  // namespace fadeloom
