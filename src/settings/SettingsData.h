// SPDX-License-Identifier: MIT
// Everything that the user can change and that outlives the program's run.
#pragma once

#include "engine/EQPreset.h"
#include "settings/AppAudioSettings.h"
#include "settings/AppearanceSettings.h"
#include "settings/FocusSettings.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// The ceilings that can be chosen for every app's volume, as linear factors.
inline constexpr std::array<float, 4> volumeLimits = {1.0F, 1.25F, 1.5F, 2.0F};

/// As made, it is what a user has who never changed anything, but for the call apps, which depend on the system. Apps
/// are named by their bundle identifiers.
struct SettingsData {
    std::map<std::string, AppAudioSettings> apps{};
    FocusSettings focus{};
    std::optional<std::string> recordingsFolder{};  // Absent: the built-in folder.
    std::map<std::string, std::string>
        knownAppNames{};  // So that an app can be named while it is not running.
    std::vector<EQPreset> userPresets{};  // In the user's order.
    AppearanceSettings appearance{};
    float volumeLimit = 1;  // One of `volumeLimits`.
    bool eqAutoHeadroom = true;

    friend bool operator==(const SettingsData&, const SettingsData&) = default;
};

/// What a user has who never changed anything.
[[nodiscard]] inline SettingsData defaultSettings(const DefaultCallApps& callApps)
{
    SettingsData settings;
    settings.focus.callApps = callApps.current;
    return settings;
}

}  // namespace fadeloom
