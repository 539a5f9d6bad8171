// SPDX-License-Identifier: MIT
// The two menus of outputs: the system's default, and one app's.
#pragma once

#include "control/ControllerState.h"
#include "ui/MenuEntry.h"

#include <QString>

#include <string>

namespace fadeloom {

/// The connected devices; the keys are their object ids. The system's default is checked.
[[nodiscard]] MenuEntries systemOutputEntries(const ControllerState& state);
/// The name of the system's default output, or "No output".
[[nodiscard]] QString systemOutputLabel(const ControllerState& state);

/// Following the system, with an empty key, then the connected devices; the keys are their unique ids.
[[nodiscard]] MenuEntries appOutputEntries(const ControllerState& state, const std::string& bundleID);
/// The name of the selected device, "Disconnected, muted" if it is missing, the devices that the app has chosen itself,
/// or "System Output".
[[nodiscard]] QString appOutputLabel(const ControllerState& state, const std::string& bundleID);

}  // namespace fadeloom
