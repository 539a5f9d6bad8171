// SPDX-License-Identifier: MIT
// This machine, as the program sees it on macOS: CoreAudio, AudioToolbox, AppKit, Qt.
#pragma once

#include "platform/Platform.h"
#include "platform/macos/AppKitWorkspace.h"
#include "platform/macos/CoreAudioHardware.h"
#include "platform/macos/DispatchQueue.h"
#include "platform/macos/ExtendedAudioFiles.h"
#include "platform/macos/FoundationClock.h"
#include "platform/macos/FoundationFolders.h"
#include "platform/macos/MainAppLoginItem.h"
#include "platform/macos/StandardUserDefaults.h"
#include "platform/macos/TccPermission.h"
#include "platform/qt/QtText.h"

namespace fadeloom {

/// Thread: main.
class PlatformMacOS {
public:
    /// The main loop has to serve the main dispatch queue, as Qt's does. Both must outlive this.
    PlatformMacOS(MainLoop& mainLoop, SystemLog& systemLog);
    PlatformMacOS(const PlatformMacOS&) = delete;
    PlatformMacOS& operator=(const PlatformMacOS&) = delete;

    [[nodiscard]] Platform platform();
    [[nodiscard]] UserDefaults& userDefaults() { return userDefaults_; }
    /// The name of an installed application, running or not.
    [[nodiscard]] std::optional<std::string> installedName(const std::string& bundleID) const
    {
        return workspace_.installedName(bundleID);
    }

private:
    MainLoop& mainLoop_;
    SystemLog& systemLog_;
    FoundationFolders folders_;
    AppKitWorkspace workspace_;
    MainAppLoginItem loginItem_;
    TccPermission capturePermission_;
    QtText text_;
    FoundationClock clock_;
    StandardUserDefaults userDefaults_;
    DispatchQueue utilityQueue_;
    DispatchQueue logQueue_;
    CoreAudioHardware audio_;
    ExtendedAudioFiles audioFiles_;
};

}  // namespace fadeloom
