// SPDX-License-Identifier: MIT
// The preset menu: its entries, and the meaning of a choice.
#pragma once

#include "settings/SettingsData.h"
#include "ui/MenuEntry.h"

#include <optional>
#include <string>

namespace fadeloom {

/// The built-in presets under their group headings, then the user's under their own, if there are any. The one with the
/// current name is checked.
[[nodiscard]] MenuEntries presetEntries(
    const SettingsData& settings, const std::optional<std::string>& currentName);
/// The actions for presets. The keys: "save", "delete", "reset".
[[nodiscard]] MenuEntries presetActionEntries(const SettingsData& settings);
/// The user presets; the keys are their names.
[[nodiscard]] MenuEntries deletablePresetEntries(const SettingsData& settings);

/// The preset for an entry of `presetEntries`; nullopt if it no longer exists.
[[nodiscard]] std::optional<EQPreset> presetOf(const SettingsData& settings, const QString& key);

}  // namespace fadeloom
