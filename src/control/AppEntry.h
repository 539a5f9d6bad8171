// SPDX-License-Identifier: MIT
// One row of the mixer, and the order of the rows.
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
    bool isPlaying = false;  // At least one of its processes is playing.
    bool isUsingMic = false;  // Likewise; false for all apps while calls are not detected.
    // Identifiers under which it may be on the list of call apps; its own first.
    std::vector<std::string> callIDs{};
    std::vector<AudioProcessID> processIDs{};  // Sorted.
    std::vector<std::string> ownOutputs{};  // Unique ids of the devices that it has chosen itself, sorted.
    std::optional<OutOfReach> outOfReach{};  // Of the first process with a reason.

    friend bool operator==(const AppEntry&, const AppEntry&) = default;
};

/// Playing ones first, then by name, ignoring case; the sort is stable.
[[nodiscard]] std::vector<AppEntry> inDisplayOrder(std::vector<AppEntry> entries, const Text& text);

/// The bundle identifiers in order, separated by ", ", each followed by "▶" while it plays.
[[nodiscard]] std::string describe(std::span<const AppEntry> entries);

}  // namespace fadeloom
