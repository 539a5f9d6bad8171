// SPDX-License-Identifier: MIT
// The platform on macOS, with HTTP requests through Qt.
#pragma once

#include "app/macos/HomeGuardian.h"
#include "app/macos/SystemPlatform.h"
#include "platform/macos/UnifiedLog.h"
#include "platform/qt/QtHttpClient.h"

namespace fadeloom {

using HomeFolders = FoundationFolders;
using HomeLog = UnifiedLog;

/// The program's preferences.
[[nodiscard]] inline StandardUserDefaults homeUserDefaults()
{
    return {};
}

/// Thread: main.
class HomePlatform {
public:
    /// Both must outlive this.
    HomePlatform(MainLoop& mainLoop, SystemLog& systemLog, HomeGuardian& /*guardian*/)
        : system_(mainLoop, systemLog, http_)
    {
    }
    [[nodiscard]] Platform platform() { return system_.platform(); }

private:
    QtHttpClient http_;
    SystemPlatform system_;
};

}  // namespace fadeloom
