// SPDX-License-Identifier: MIT
// Detects calls, and determines which apps are ducked.
//
// An app on the user's list is on a call while it uses the microphone; no other evidence counts. An app that is not on
// the list but plays while it uses the microphone may be on a call, too: it is suggested.
#pragma once

#include "control/AppEntry.h"
#include "settings/FocusSettings.h"

#include <optional>
#include <set>
#include <span>
#include <string>

namespace fadeloom {

/// The first of the mixer's rows, in their order, that is on a call; nullopt if none is, and while ducking is off.
[[nodiscard]] std::optional<std::string> appOnCall(
    std::span<const AppEntry> entries, const FocusSettings& focus);

/// The linear factor for an app while `callApp` is on a call. All apps on the list keep their level. `identifiers`:
/// those of the app.
[[nodiscard]] float duckFactor(const FocusSettings& focus, const std::optional<std::string>& callApp,
    std::span<const std::string> identifiers);

/// The rows that are suggested as call apps. Those in `offered` remain so after their call, until the user has decided.
[[nodiscard]] std::set<std::string> callOffers(
    std::span<const AppEntry> entries, const FocusSettings& focus, const std::set<std::string>& offered);

}  // namespace fadeloom
