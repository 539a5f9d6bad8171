// SPDX-License-Identifier: MIT
// The lists and menus of the settings page.
#pragma once

#include "control/ControllerState.h"
#include "settings/SettingsData.h"
#include "ui/DisplayName.h"
#include "ui/MenuEntry.h"

#include <QString>

#include <string>
#include <vector>

namespace fadeloom {

/// The key of the entry for choosing any application.
inline constexpr const char* chooseAppKey = "choose";

/// The call apps by name, one entry per app even if several of its identifiers are listed; the keys are bundle
/// identifiers.
[[nodiscard]] MenuEntries callAppEntries(
    const SettingsData& settings, const CallApps& callApps, const InstalledName& installedName);
/// The apps of the mixer that can be added to them: suggested ones first, with an explanation; then the others; then an
/// entry with the key `chooseAppKey`.
[[nodiscard]] MenuEntries offeredAppEntries(const ControllerState& state);
/// The effect of accepting an app that is suggested as a call app.
[[nodiscard]] QString callOfferText(const std::string& appName);

/// A volume limit as text.
[[nodiscard]] QString volumeLimitText(float limit);
/// All of them; the keys are their positions in `volumeLimits`.
[[nodiscard]] MenuEntries volumeLimitEntries(float current);

/// The display name of an option of AppLanguage. `code`: of one of them.
[[nodiscard]] QString languageName(const std::string& code);
/// All of them; the keys are their codes.
[[nodiscard]] MenuEntries languageEntries(const std::string& current);

}  // namespace fadeloom
