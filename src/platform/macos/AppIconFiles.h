// SPDX-License-Identifier: MIT
// Pictures of applications as files, which is how pictures leave this folder.
#pragma once

#include "platform/Workspace.h"

#include <filesystem>
#include <map>
#include <optional>

@class NSRunningApplication;

namespace fadeloom {

/// For Objective-C++ only. Thread: main.
class AppIconFiles {
public:
    /// `folder` is made when it is needed.
    explicit AppIconFiles(std::filesystem::path folder);

    /// An application's picture, written once for each bundle; absent when it has none, or it cannot be written.
    std::optional<AppIcon> iconOf(NSRunningApplication* application);

private:
    const std::filesystem::path folder_;
    std::map<std::filesystem::path, std::optional<AppIcon>> written_;  // By bundle location.
};

}  // namespace fadeloom
