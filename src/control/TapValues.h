// SPDX-License-Identifier: MIT
// From what the user has set to what a renderer applies.
#pragma once

#include "engine/TapParameters.h"
#include "settings/AppAudioSettings.h"
#include "settings/SettingsData.h"

namespace fadeloom {

/// How an app sounds with these settings. `isSilenced`: its output is missing. `duck`: linear, for a call. The version
/// of the equalizer and the recorder are not part of it and stay as in a new block.
[[nodiscard]] TapParameters::Values tapValues(
    const SettingsData& settings, const AppAudioSettings& app, bool isSilenced, float duck = 1);

/// Writes `values` into the block, in one piece as its renderer sees it; the equalizer's version and the
/// recorder stay. Thread: main.
void store(const TapParameters::Values& values, TapParameters& block);

}  // namespace fadeloom
