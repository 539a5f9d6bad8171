// SPDX-License-Identifier: MIT
// All persistent settings.
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

/// The selectable limits of every app's volume, as linear factors.
inline constexpr std::array<float, 4> volumeLimits = {1.0F, 1.25F, 1.5F, 2.0F};

/// Default-constructed, it has the defaults, except for the call apps, which depend on the platform. Apps are
/// identified by bundle identifier.
struct SettingsData {
    std::map<std::string, AppAudioSettings> apps{};
    FocusSettings focus{};
    std::optional<std::string> recordingsFolder{};  // Absent: the default folder.
    // So that an app can be named while it is not running.
    std::map<std::string, std::string> knownAppNames{};
    std::vector<EQPreset> userPresets{};  // In the user's order.
    AppearanceSettings appearance{};
    float volumeLimit = 1;  // One of `volumeLimits`.
    bool eqAutoHeadroom = true;

    friend bool operator==(const SettingsData&, const SettingsData&) = default;
};

/// The settings of a user who never changed anything.
[[nodiscard]] inline SettingsData defaultSettings(const DefaultCallApps& callApps)
{
    SettingsData settings;
    settings.focus.callApps = callApps.current;
    return settings;
}

}  // namespace fadeloom
