// SPDX-License-Identifier: MIT
// Whether, how far, and for whose calls the other apps are lowered.
#pragma once

#include "platform/CallApps.h"

#include <span>
#include <string>
#include <vector>

namespace fadeloom {

/// Apps are named by bundle identifiers.
struct FocusSettings {
    bool enabled = true;
    float duckLevel = 0.2F;  // Linear factor on every other app, 0 to 1.
    std::vector<std::string> callApps{};  // One identifier stands for all of a well-known app.
    std::vector<std::string> declinedCallApps{};  // Not offered as call apps any more.

    friend bool operator==(const FocusSettings&, const FocusSettings&) = default;
};

/// The list of call apps of a user who never changed it.
struct DefaultCallApps {
    std::vector<std::string> current{};
    std::vector<std::string> former{};  // Of an earlier version; empty when there is no other one.
};

[[nodiscard]] DefaultCallApps defaultCallApps(const CallApps& callApps);

/// Whether the list names the app that has these identifiers.
[[nodiscard]] bool isCallApp(const FocusSettings& focus, std::span<const std::string> identifiers);
/// Adds the app with the first of its identifiers, unless it is there.
void addCallApp(FocusSettings& focus, std::span<const std::string> identifiers);
/// Takes it off the list; it is not offered from now on.
void removeCallApp(FocusSettings& focus, std::span<const std::string> identifiers);

}  // namespace fadeloom
