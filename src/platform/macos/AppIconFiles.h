// SPDX-License-Identifier: MIT
// Pictures of applications as files, which is how pictures leave this folder.
#pragma once

#include "platform/Workspace.h"
#include "platform/macos/DispatchQueue.h"

#include <filesystem>
#include <functional>
#include <memory>

@class NSRunningApplication;

namespace fadeloom {

/// For Objective-C++ only. Thread: main.
class AppIconFiles {
public:
    using Found = std::function<void(const AppIcon&)>;

    /// `folder` is made when it is needed.
    explicit AppIconFiles(std::filesystem::path folder);
    AppIconFiles(const AppIconFiles&) = delete;
    AppIconFiles& operator=(const AppIconFiles&) = delete;
    ~AppIconFiles();

    /// An application's picture, drawn and written off the main thread, once for each bundle. `found` is not called when
    /// it has none, or it cannot be written.
    void find(NSRunningApplication* application, Found found);

private:
    struct Bundles;

    const std::filesystem::path folder_;
    const std::shared_ptr<Bundles> bundles_;  // Which a picture that is being drawn looks for at its end.
    DispatchQueue queue_{"com.fadeloom.icons"};
};

}  // namespace fadeloom
