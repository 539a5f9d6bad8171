// SPDX-License-Identifier: MIT
// Derives a renderer's values from the user's settings.
#pragma once

#include "engine/TapParameters.h"
#include "settings/AppAudioSettings.h"
#include "settings/SettingsData.h"

namespace fadeloom {

/// The values for an app with these settings. `isSilenced`: its output is missing. `duck`: linear, for a call. The
/// equalizer version and the recorder are not included and keep their initial values.
[[nodiscard]] TapParameters::Values tapValues(
    const SettingsData& settings, const AppAudioSettings& app, bool isSilenced, float duck = 1);

/// Writes `values` into the block, atomically for its renderer; the equalizer version and the recorder are unchanged.
/// Thread: main.
void store(const TapParameters::Values& values, TapParameters& block);

}  // namespace fadeloom
