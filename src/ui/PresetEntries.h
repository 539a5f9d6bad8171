// SPDX-License-Identifier: MIT
// The preset menu: what it offers, and what a choice means.
#pragma once

#include "settings/SettingsData.h"
#include "ui/MenuEntry.h"

#include <optional>
#include <string>

namespace fadeloom {

/// The built-in presets under the headings of their groups, then the user's under their own, if there are any. The one
/// that bears the current name is checked.
[[nodiscard]] MenuEntries presetEntries(
    const SettingsData& settings, const std::optional<std::string>& currentName);
/// What can be done with presets. The keys: "save", "delete", "reset".
[[nodiscard]] MenuEntries presetActionEntries(const SettingsData& settings);
/// The user's presets; the keys are their names.
[[nodiscard]] MenuEntries deletablePresetEntries(const SettingsData& settings);

/// The preset that an entry of `presetEntries` stands for; absent when it is gone.
[[nodiscard]] std::optional<EQPreset> presetOf(const SettingsData& settings, const QString& key);

}  // namespace fadeloom
