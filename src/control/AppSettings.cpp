// SPDX-License-Identifier: MIT
#include "control/AppSettings.h"

namespace fadeloom {

AppAudioSettings appSettings(const SettingsData& settings, const std::string& bundleID)
{
    const auto app = settings.apps.find(bundleID);
    return app == settings.apps.end() ? AppAudioSettings{} : app->second;
}

void storeAppSettings(SettingsData& settings, const std::string& bundleID, const AppAudioSettings& app)
{
    if (app == AppAudioSettings{})
        settings.apps.erase(bundleID);
    else
        settings.apps.insert_or_assign(bundleID, app);
}

std::set<std::string> appsToHold(const SettingsData& settings)
{
    std::set<std::string> apps;
    for (const auto& [id, app] : settings.apps) {
        if (app.muted || app.volume < 1 || app.outputUID)
            apps.insert(id);
    }
    return apps;
}

}  // namespace fadeloom
