// SPDX-License-Identifier: MIT
#include "control/UserPresets.h"

#include "control/AppSettings.h"
#include "engine/EQPresets.h"
#include "platform/Text.h"

#include <algorithm>
#include <vector>

namespace fadeloom {

bool isBuiltInPresetName(std::string_view name, const Text& text)
{
    return std::ranges::any_of(
        EQPresets::all(), [&](const EQPreset& preset) { return text.equalIgnoringCase(preset.name, name); });
}

void applyPreset(SettingsData& settings, const EQPreset& preset, const std::string& bundleID)
{
    auto app = appSettings(settings, bundleID);
    app.eqGains = {};  // Bands that the preset does not specify remain flat.
    std::copy_n(preset.gains.begin(), std::min(preset.gains.size(), app.eqGains.size()), app.eqGains.begin());
    app.eqPresetName = preset.name;
    app.eqEnabled = true;
    storeAppSettings(settings, bundleID, app);
}

void saveUserPreset(
    SettingsData& settings, const std::string& name, const std::string& bundleID, const Text& text)
{
    auto app = appSettings(settings, bundleID);
    auto& presets = settings.userPresets;
    std::erase_if(presets, [&](const EQPreset& preset) { return text.equalIgnoringCase(preset.name, name); });
    presets.push_back({.name = name, .gains = {app.eqGains.begin(), app.eqGains.end()}});
    std::ranges::stable_sort(presets, [&](const EQPreset& one, const EQPreset& other) {
        return text.compareLocalized(one.name, other.name) < 0;
    });
    app.eqPresetName = name;
    storeAppSettings(settings, bundleID, app);
}

void deleteUserPreset(SettingsData& settings, const EQPreset& preset)
{
    std::erase(settings.userPresets, preset);

    std::vector<std::string> users;  // A copy: storing may remove an app's entry.
    for (const auto& [id, app] : settings.apps) {
        if (app.eqPresetName == preset.name)
            users.push_back(id);
    }
    for (const auto& id : users) {
        auto app = appSettings(settings, id);
        app.eqPresetName.reset();
        storeAppSettings(settings, id, app);
    }
}

}  // namespace fadeloom
