// SPDX-License-Identifier: MIT
// What the program stands on when it is at home on macOS.
#pragma once

#include "app/DesktopMacOS.h"
#include "app/EarlyEnd.h"
#include "app/PlatformMacOS.h"
#include "platform/macos/UnifiedLog.h"
#include "platform/qt/QtHttpClient.h"

#include <functional>
#include <optional>

namespace fadeloom {

using HomeDesktop = DesktopMacOS;
using HomeFolders = FoundationFolders;
using HomeLog = UnifiedLog;
using HomePanel = PopoverMacOS;

/// With requests to a web server, which are Qt's.
class HomePlatform {
public:
    HomePlatform(MainLoop& mainLoop, SystemLog& systemLog)
        : platform_(mainLoop, systemLog, http_)
    {
    }
    [[nodiscard]] Platform platform() { return platform_.platform(); }

private:
    QtHttpClient http_;
    PlatformMacOS platform_;
};

/// The user's applications and files, for a program that is on no platform of this machine.
class HomeWorkspace {
public:
    [[nodiscard]] Workspace& workspace() { return workspace_; }

private:
    FoundationFolders folders_;
    AppKitWorkspace workspace_{iconFolder(folders_)};
};

/// The system itself opens a bundle only once; who starts the executable inside of it gets one more.
class HomeInstance {
public:
    struct Actions {
        std::function<void()> open = nullptr;
        std::function<void()> toggle = nullptr;
        std::function<void()> quit = nullptr;
    };

    [[nodiscard]] std::optional<EarlyEnd> claim(bool /*wantsPanel*/) { return std::nullopt; }
    void serve(const Actions& /*actions*/) { }
    void beginEnding() { }
};

}  // namespace fadeloom
