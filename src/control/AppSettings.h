// SPDX-License-Identifier: MIT
// One application's settings within the record of all.
//
// Only what differs from the defaults is remembered, so the settings file lists the apps that the user has changed.
#pragma once

#include "settings/SettingsData.h"

#include <set>
#include <string>

namespace fadeloom {

/// What is set for the app; the defaults when nothing is.
[[nodiscard]] AppAudioSettings appSettings(const SettingsData& settings, const std::string& bundleID);

/// Remembers what is set for the app, and drops its entry when that is what an app without one has anyway.
void storeAppSettings(SettingsData& settings, const std::string& bundleID, const AppAudioSettings& app);

/// The apps that must not be heard without their tap: those that are muted, made quieter, or sent elsewhere.
[[nodiscard]] std::set<std::string> appsToHold(const SettingsData& settings);

}  // namespace fadeloom
