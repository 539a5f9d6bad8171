// SPDX-License-Identifier: MIT
// Application icons as files, the form in which icons leave this folder.
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

    /// `folder` is created on demand.
    explicit AppIconFiles(std::filesystem::path folder);
    AppIconFiles(const AppIconFiles&) = delete;
    AppIconFiles& operator=(const AppIconFiles&) = delete;
    ~AppIconFiles();

    /// An application's icon, rendered and written off the main thread, once per bundle. `found` is not called if it
    /// has none, or it cannot be written.
    void find(NSRunningApplication* application, Found found);

private:
    struct Bundles;

    const std::filesystem::path folder_;
    const std::shared_ptr<Bundles> bundles_;  // Accessed when rendering finishes.
    DispatchQueue queue_{"com.fadeloom.icons"};
};

}  // namespace fadeloom
