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
    return {audio_, audioFiles_, workspace_, capturePermission_, loginItem_, mainLoop_, utilityQueue_,
        logQueue_, folders_, systemLog_, text_, clock_, userDefaults_, http_};
}

}  // namespace fadeloom
