// SPDX-License-Identifier: MIT
#include "control/TapValues.h"

#include "engine/EqualizerHeadroom.h"

#include <algorithm>
#include <cmath>
#include <mutex>

namespace fadeloom {
namespace {

// The same rate for every device, so that moving an app to another device never changes its loudness.
constexpr double headroomSampleRate = 48000;

}  // namespace

TapParameters::Values tapValues(
    const SettingsData& settings, const AppAudioSettings& app, bool isSilenced, float duck)
{
    const float headroom = settings.eqAutoHeadroom ? eqLoudnessGainDB(app.eqGains, headroomSampleRate) : 0.0F;
    return {
        .volume = std::min(app.volume, settings.volumeLimit),
        .muted = app.muted || isSilenced,
        .duck = duck,
        .eqEnabled = app.eqEnabled,
        .preamp = std::pow(10.0F, (app.eqPreamp - headroom) / 20.0F),
    };
}

void store(const TapParameters::Values& values, TapParameters& block)
{
    const std::scoped_lock guard(block.lock);
    block.values.volume = values.volume;
    block.values.muted = values.muted;
    block.values.duck = values.duck;
    block.values.eqEnabled = values.eqEnabled;
    block.values.preamp = values.preamp;
}

}  // namespace fadeloom
