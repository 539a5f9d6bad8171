// SPDX-License-Identifier: MIT
// Who is on a call, and who is lowered for it.
//
// A call is an app of the user's list that uses the microphone; nothing else is known of it. An app off the list that
// plays while it uses the microphone may be one, too: it is offered.
#pragma once

#include "control/AppEntry.h"
#include "settings/FocusSettings.h"

#include <optional>
#include <set>
#include <span>
#include <string>

namespace fadeloom {

/// The first of the mixer's rows, in their order, that is on a call; absent while none is, and while ducking is off.
[[nodiscard]] std::optional<std::string> appOnCall(
    std::span<const AppEntry> entries, const FocusSettings& focus);

/// The linear factor for an app while `callApp` is on a call. The apps of the list keep their level, all of them.
/// `identifiers`: those of the app.
[[nodiscard]] float duckFactor(const FocusSettings& focus, const std::optional<std::string>& callApp,
    std::span<const std::string> identifiers);

/// The rows that are offered as call apps. What was `offered` stays so after its call, until the user has answered.
[[nodiscard]] std::set<std::string> callOffers(
    std::span<const AppEntry> entries, const FocusSettings& focus, const std::set<std::string>& offered);

}  // namespace fadeloom
