// SPDX-License-Identifier: MIT
// Ducking during calls: whether, how far, and for which call apps.
#pragma once

#include "platform/CallApps.h"

#include <span>
#include <string>
#include <vector>

namespace fadeloom {

/// Apps are named by bundle identifiers.
struct FocusSettings {
    bool enabled = true;
    float duckLevel = 0.2F;  // Linear factor for every other app, 0 to 1.
    std::vector<std::string> callApps{};  // One identifier represents all those of a known app.
    std::vector<std::string> declinedCallApps{};  // No longer suggested as call apps.

    friend bool operator==(const FocusSettings&, const FocusSettings&) = default;
};

/// The list of call apps of a user who never changed it.
struct DefaultCallApps {
    std::vector<std::string> current{};
    std::vector<std::string> former{};  // Default of an earlier version; empty if there is none.
};

[[nodiscard]] DefaultCallApps defaultCallApps(const CallApps& callApps);

/// Whether the list contains any of the app's identifiers.
[[nodiscard]] bool isCallApp(const FocusSettings& focus, std::span<const std::string> identifiers);
/// Adds the app with its first identifier, unless it is on the list.
void addCallApp(FocusSettings& focus, std::span<const std::string> identifiers);
/// Removes the app from the list; it is not suggested from now on.
void removeCallApp(FocusSettings& focus, std::span<const std::string> identifiers);

}  // namespace fadeloom
