// SPDX-License-Identifier: MIT
// The lists and menus of the settings page.
#pragma once

#include "control/AppEntry.h"
#include "settings/SettingsData.h"
#include "ui/DisplayName.h"
#include "ui/MenuEntry.h"

#include <QString>

#include <string>
#include <vector>

namespace fadeloom {

/// The key of the entry that asks for any application.
inline constexpr const char* chooseAppKey = "choose";

/// The call apps by their names; the keys are their bundle identifiers.
[[nodiscard]] MenuEntries callAppEntries(const SettingsData& settings, const InstalledName& installedName);
/// The listed apps that can be added to them, then one with the key `chooseAppKey`.
[[nodiscard]] MenuEntries offeredAppEntries(const SettingsData& settings, const std::vector<AppEntry>& apps);

/// A limit of the volume in words.
[[nodiscard]] QString volumeLimitText(float limit);
/// All of them; the keys are their positions in `volumeLimits`.
[[nodiscard]] MenuEntries volumeLimitEntries(float current);

/// What a choice of AppLanguage is called. `code`: of one of them.
[[nodiscard]] QString languageName(const std::string& code);
/// All of them; the keys are their codes.
[[nodiscard]] MenuEntries languageEntries(const std::string& current);

}  // namespace fadeloom
