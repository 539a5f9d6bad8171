// SPDX-License-Identifier: MIT
// The user presets within the settings record.
#pragma once

#include "engine/EQPreset.h"
#include "settings/SettingsData.h"

#include <string>
#include <string_view>

namespace fadeloom {

class Text;

/// Whether a built-in preset has this name, ignoring case.
[[nodiscard]] bool isBuiltInPresetName(std::string_view name, const Text& text);

/// Applies this curve and its name to the app, and switches its equalizer on.
void applyPreset(SettingsData& settings, const EQPreset& preset, const std::string& bundleID);

/// Saves the app's curve as `name`, replacing one whose name differs in case at most. The list is in the user's
/// collation order.
void saveUserPreset(
    SettingsData& settings, const std::string& name, const std::string& bundleID, const Text& text);

/// Removes the preset. Apps that use its name sound as before, with an unnamed curve.
void deleteUserPreset(SettingsData& settings, const EQPreset& preset);

}  // namespace fadeloom
