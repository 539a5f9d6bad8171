// SPDX-License-Identifier: MIT
#include "app/linux/HomePlatform.h"

#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/Variables.h"
#include "settings/SettingsFile.h"

namespace fadeloom {

QtUserDefaults homeUserDefaults()
{
    return QtUserDefaults(SettingsFile::defaultURL(XdgFolders()).parent_path() / "preferences.ini");
}

HomePlatform::HomePlatform(MainLoop& mainLoop, SystemLog& systemLog, HomeGuardian& guardian)
    : mainLoop_(mainLoop)
    , systemLog_(systemLog)
    , fileManager_(systemLog)
    , workspace_(linuxEnvironment(processVariables()), fileManager_)
    , graphWorkspace_(linuxEnvironment(processVariables()), fileManager_)
    , userDefaults_(homeUserDefaults())
    , audio_(mainLoop,
          {
              .bundleIdentifier =
                  [this](ProcessID pid, const std::string& portalAppID) {
                      return workspace_.bundleIdentifier(pid, portalAppID);
                  },
              .newBundleIdentifier =
                  [this](ProcessID pid, const std::string& portalAppID) {
                      return graphWorkspace_.bundleIdentifier(pid, portalAppID);
                  },
              .portalProcess = [this](const std::string& portalAppID) { return processOf(portalAppID); },
              .report = [this](SystemLog::Level level,
                            const std::string& message) { systemLog_.write(level, message); },
              .ownClient = [&guardian](std::uint64_t client) { guardian.holdClient(client); },
          })
{
}

Platform HomePlatform::platform()
{
    return {
        .audio = audio_,
        .audioFiles = audioFiles_,
        .workspace = workspace_,
        .capturePermission = capturePermission_,
        .loginItem = loginItem_,
        .mainLoop = mainLoop_,
        .utilityQueue = utilityQueue_,
        .logQueue = logQueue_,
        .folders = folders_,
        .systemLog = systemLog_,
        .text = text_,
        .clock = clock_,
        .userDefaults = userDefaults_,
        .http = http_,
        .callApps = callApps_,
    };
}

// Any process of the sandboxed application will do: it only identifies the application.
ProcessID HomePlatform::processOf(const std::string& portalAppID) const
{
    for (const auto& application : workspace_.runningApplications()) {
        if (application.bundleID == portalAppID)
            return application.pid;
    }
    return -1;
}

}  // namespace fadeloom
