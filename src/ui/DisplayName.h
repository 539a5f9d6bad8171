// SPDX-License-Identifier: MIT
// What an app is called in a list, whether it runs or not.
#pragma once

#include "platform/CallApps.h"
#include "settings/SettingsData.h"

#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

/// The name that the system has for an installed application; absent when it knows none.
using InstalledName = std::function<std::optional<std::string>(const std::string& bundleID)>;

/// The name remembered for the app, else that of a well-known call app, else the system's without ".app", else the
/// identifier itself.
[[nodiscard]] std::string displayName(const SettingsData& settings, const CallApps& callApps,
    const std::string& bundleID, const InstalledName& installedName);

}  // namespace fadeloom
