// SPDX-License-Identifier: MIT
// The services of macOS itself: CoreAudio, AudioToolbox, AppKit. HTTP is provided elsewhere.
#pragma once

#include "platform/Platform.h"
#include "platform/macos/AppKitWorkspace.h"
#include "platform/macos/CoreAudioSystem.h"
#include "platform/macos/DispatchQueue.h"
#include "platform/macos/ExtendedAudioFiles.h"
#include "platform/macos/FoundationClock.h"
#include "platform/macos/FoundationFolders.h"
#include "platform/macos/MacOSCallApps.h"
#include "platform/macos/MainAppLoginItem.h"
#include "platform/macos/StandardUserDefaults.h"
#include "platform/macos/TccPermission.h"
#include "platform/qt/QtText.h"

namespace fadeloom {

/// The folder in which application icons are cached for the panel.
[[nodiscard]] std::filesystem::path iconFolder(const FoundationFolders& folders);

/// Thread: main.
class SystemPlatform {
public:
    /// The main loop must serve the main dispatch queue, as Qt's does. All arguments must outlive this.
    SystemPlatform(MainLoop& mainLoop, SystemLog& systemLog, HttpClient& http);
    SystemPlatform(const SystemPlatform&) = delete;
    SystemPlatform& operator=(const SystemPlatform&) = delete;

    [[nodiscard]] Platform platform();

private:
    MainLoop& mainLoop_;
    SystemLog& systemLog_;
    HttpClient& http_;
    MacOSCallApps callApps_;
    FoundationFolders folders_;
    AppKitWorkspace workspace_;
    MainAppLoginItem loginItem_;
    TccPermission capturePermission_;
    QtText text_;
    FoundationClock clock_;
    StandardUserDefaults userDefaults_;
    DispatchQueue utilityQueue_;
    DispatchQueue logQueue_;
    CoreAudioSystem audio_;
    ExtendedAudioFiles audioFiles_;
};

}  // namespace fadeloom
