// SPDX-License-Identifier: MIT
#include "app/macos/SystemPlatform.h"

namespace fadeloom {

std::filesystem::path iconFolder(const FoundationFolders& folders)
{
    return folders.caches() / "com.fadeloom.app" / "icons";
}

SystemPlatform::SystemPlatform(MainLoop& mainLoop, SystemLog& systemLog, HttpClient& http)
    : mainLoop_(mainLoop)
    , systemLog_(systemLog)
    , http_(http)
    , workspace_(iconFolder(folders_))
    , utilityQueue_("com.fadeloom.settings")
    , logQueue_("com.fadeloom.log")
{
}

Platform SystemPlatform::platform()
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

}  // namespace fadeloom
