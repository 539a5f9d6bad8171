// SPDX-License-Identifier: MIT
// The user's own equalizer curves within the record of all settings.
#pragma once

#include "engine/EQPreset.h"
#include "settings/SettingsData.h"

#include <string>
#include <string_view>

namespace fadeloom {

class Text;

/// Whether a built-in curve has this name, whatever the letter case.
[[nodiscard]] bool isBuiltInPresetName(std::string_view name, const Text& text);

/// Gives the app this curve, under its name, and switches its equalizer on.
void applyPreset(SettingsData& settings, const EQPreset& preset, const std::string& bundleID);

/// Keeps the app's curve under `name`, in place of one whose name differs in letter case at most. The list is in the
/// order of the user's language.
void saveUserPreset(
    SettingsData& settings, const std::string& name, const std::string& bundleID, const Text& text);

/// Removes the preset. Apps that bear its name sound as before, with a curve that has no name.
void deleteUserPreset(SettingsData& settings, const EQPreset& preset);

}  // namespace fadeloom
