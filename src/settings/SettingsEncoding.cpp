// SPDX-License-Identifier: MIT
#include "settings/PrettyJson.h"
#include "settings/SettingsJson.h"

#include <cmath>

namespace fadeloom {

namespace {

using Json = FloatJson;

// Replaces numbers that JSON cannot represent.
float finite(float value, float otherwise)
{
    return std::isfinite(value) ? value : otherwise;
}

template <typename Gains>
Json encodeGains(const Gains& gains)
{
    auto list = Json::array();
    for (const float gain : gains)
        list.push_back(finite(gain, 0));
    return list;
}

Json encode(const AppAudioSettings& app)
{
    const AppAudioSettings defaults;
    Json object{
        {"volume", finite(app.volume, defaults.volume)},
        {"muted", app.muted},
        {"eqEnabled", app.eqEnabled},
        {"eqPresetName", nullptr},
        {"eqGains", encodeGains(app.eqGains)},
        {"eqPreamp", finite(app.eqPreamp, defaults.eqPreamp)},
    };
    // Always written, because a missing name is read as the default one.
    if (app.eqPresetName)
        object["eqPresetName"] = *app.eqPresetName;
    if (app.outputUID)
        object["outputUID"] = *app.outputUID;
    return object;
}

Json encode(const FocusSettings& focus)
{
    Json object{
        {"enabled", focus.enabled},
        {"duckLevel", finite(focus.duckLevel, FocusSettings().duckLevel)},
        {"callApps", focus.callApps},
    };
    if (!focus.declinedCallApps.empty())
        object["declinedCallApps"] = focus.declinedCallApps;
    return object;
}

Json encode(const AppearanceSettings& appearance)
{
    return {
        {"theme", themeText(appearance.theme)},
        {"glass", appearance.glass},
        {"animations", appearance.animations},
        {"levelMeters", appearance.levelMeters},
    };
}

}  // namespace

std::string encodeSettings(const SettingsData& settings)
{
    Json object{
        {"apps", Json::object()},
        {"focus", encode(settings.focus)},
        {"knownAppNames", settings.knownAppNames},
        {"userPresets", Json::array()},
        {"appearance", encode(settings.appearance)},
        {"volumeLimit", finite(settings.volumeLimit, SettingsData().volumeLimit)},
        {"eqAutoHeadroom", settings.eqAutoHeadroom},
    };
    for (const auto& [bundleID, app] : settings.apps)
        object["apps"][bundleID] = encode(app);
    for (const auto& preset : settings.userPresets)
        object["userPresets"].push_back({{"name", preset.name}, {"gains", encodeGains(preset.gains)}});
    if (settings.recordingsFolder)
        object["recordingsFolder"] = *settings.recordingsFolder;
    return prettyJson(object);
}

}  // namespace fadeloom
