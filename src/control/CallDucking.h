// SPDX-License-Identifier: MIT
// Who is on a call, and who is lowered for it.
//
// A call is an app of the user's list that uses the microphone; nothing else is known of it.
#pragma once

#include "control/AppEntry.h"
#include "settings/FocusSettings.h"

#include <optional>
#include <span>
#include <string>

namespace fadeloom {

/// The first of the mixer's rows, in their order, that is on a call; absent while none is, and while ducking is off.
[[nodiscard]] std::optional<std::string> appOnCall(
    std::span<const AppEntry> entries, const FocusSettings& focus);

/// The linear factor for an app while `callApp` is on a call. The apps of the list keep their level, all of them.
[[nodiscard]] float duckFactor(
    const FocusSettings& focus, const std::optional<std::string>& callApp, const std::string& bundleID);

}  // namespace fadeloom
