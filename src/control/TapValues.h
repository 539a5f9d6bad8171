// SPDX-License-Identifier: MIT
// From what the user has set to what a renderer applies.
#pragma once

#include "engine/TapParameters.h"
#include "settings/AppAudioSettings.h"
#include "settings/SettingsData.h"

namespace fadeloom {

/// How an app sounds with these settings. `isSilenced`: its output is missing. The version of the equalizer is not
/// part of it and stays 0.
[[nodiscard]] TapParameters::Values tapValues(
    const SettingsData& settings, const AppAudioSettings& app, bool isSilenced);

/// Writes `values` into the block, in one piece as its renderer sees it; the equalizer's version stays. Thread: main.
void store(const TapParameters::Values& values, TapParameters& block);

}  // namespace fadeloom
