// SPDX-License-Identifier: MIT
// The contents of a controller without an audio system.
#pragma once

#include "control/AppEntry.h"
#include "control/LevelStore.h"
#include "platform/OutputDevice.h"
#include "settings/SettingsData.h"

#include <set>
#include <string>
#include <vector>

namespace fadeloom {

/// The first of the devices is the system's default output.
struct DemoContents {
    std::vector<AppEntry> apps{};
    std::vector<OutputDevice> devices{};
    std::set<std::string> callOffers{};
    SettingsData settings{};
    LevelStore::Levels levels{};
};

}  // namespace fadeloom
