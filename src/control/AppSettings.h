// SPDX-License-Identifier: MIT
// One application's settings within the settings record.
//
// Only differences from the defaults are stored, so the settings file lists the apps that the user has changed.
#pragma once

#include "settings/SettingsData.h"

#include <set>
#include <string>

namespace fadeloom {

/// The app's settings; the defaults if there are none.
[[nodiscard]] AppAudioSettings appSettings(const SettingsData& settings, const std::string& bundleID);

/// Stores the app's settings, or removes its entry if they equal the defaults.
void storeAppSettings(SettingsData& settings, const std::string& bundleID, const AppAudioSettings& app);

/// The apps that must not bypass their tap: those that are muted, attenuated, or routed elsewhere.
[[nodiscard]] std::set<std::string> appsToHold(const SettingsData& settings);

}  // namespace fadeloom
