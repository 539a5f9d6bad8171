// SPDX-License-Identifier: MIT
// An app's name in a list, whether it is running or not.
#pragma once

#include "platform/CallApps.h"
#include "settings/SettingsData.h"

#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

/// The system's name for an installed application; nullopt if it is unknown.
using InstalledName = std::function<std::optional<std::string>(const std::string& bundleID)>;

/// The name stored for the app, else that of a known call app, else the system's without ".app", else the identifier.
[[nodiscard]] std::string displayName(const SettingsData& settings, const CallApps& callApps,
    const std::string& bundleID, const InstalledName& installedName);

}  // namespace fadeloom
