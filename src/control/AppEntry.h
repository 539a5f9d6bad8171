// SPDX-License-Identifier: MIT
// One row of the mixer, and the order in which rows stand.
#pragma once

#include "platform/AudioProcess.h"
#include "platform/Text.h"
#include "platform/Workspace.h"

#include <span>
#include <string>
#include <vector>

namespace fadeloom {

struct AppEntry {
    std::string bundleID{};
    std::string name{};
    AppIcon icon{};
    bool isPlaying = false;  // At least one of its processes is.
    bool isUsingMic = false;  // Likewise; false for every app while calls are not looked for.
    std::vector<std::string> callIDs{};  // Under which it may stand among the call apps; its own first.
    std::vector<AudioProcessID> processIDs{};  // Ascending.
    std::vector<std::string> ownOutputs{};  // Unique ids of the devices of its own choice, ascending.
    std::optional<OutOfReach> outOfReach{};  // Of the first process that has a reason.

    friend bool operator==(const AppEntry&, const AppEntry&) = default;
};

/// Those that play first, then by name whatever its letter case; what is equal in both keeps its order.
[[nodiscard]] std::vector<AppEntry> inDisplayOrder(std::vector<AppEntry> entries, const Text& text);

/// The bundle identifiers in order, parted by ", ", each followed by "▶" while it plays.
[[nodiscard]] std::string describe(std::span<const AppEntry> entries);

}  // namespace fadeloom
