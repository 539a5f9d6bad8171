// SPDX-License-Identifier: MIT
// The platform on Linux: PipeWire, libsndfile, a freedesktop session, Qt.
#pragma once

#include "app/linux/HomeGuardian.h"
#include "platform/Platform.h"
#include "platform/linux/AlwaysGrantedPermission.h"
#include "platform/linux/AutostartLoginItem.h"
#include "platform/linux/FileManager.h"
#include "platform/linux/LinuxCallApps.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/SyslogSystemLog.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/UtilityQueue.h"
#include "platform/linux/XdgFolders.h"
#include "platform/pipewire/PipeWireAudioSystem.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtUserDefaults.h"
#include "platform/sndfile/SndfileAudioFiles.h"

namespace fadeloom {

/// The program's preferences, beside its settings.
[[nodiscard]] QtUserDefaults homeUserDefaults();

using HomeFolders = XdgFolders;
using HomeLog = SyslogSystemLog;

/// Thread: main.
class HomePlatform {
public:
    /// `systemLog` also receives messages of the audio system's connection, `guardian` the id of our client. All
    /// arguments must outlive this.
    HomePlatform(MainLoop& mainLoop, SystemLog& systemLog, HomeGuardian& guardian);
    HomePlatform(const HomePlatform&) = delete;
    HomePlatform& operator=(const HomePlatform&) = delete;

    [[nodiscard]] Platform platform();

private:
    [[nodiscard]] ProcessID processOf(const std::string& portalAppID) const;

    MainLoop& mainLoop_;
    SystemLog& systemLog_;
    XdgFolders folders_;
    FileManager fileManager_;
    LinuxWorkspace workspace_;
    LinuxWorkspace graphWorkspace_;  // Used only on the graph thread.
    LinuxCallApps callApps_{[this](const std::string& id) { return workspace_.desktopEntry(id); }};
    AutostartLoginItem loginItem_;
    AlwaysGrantedPermission capturePermission_;
    QtText text_;
    SystemClock clock_;
    QtUserDefaults userDefaults_;
    QtHttpClient http_;
    UtilityQueue utilityQueue_;
    UtilityQueue logQueue_;
    PipeWireAudioSystem audio_;
    SndfileAudioFiles audioFiles_;
};

}  // namespace fadeloom
