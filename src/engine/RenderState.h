// SPDX-License-Identifier: MIT
// The stages of the render path, and their state across cycles.
//
// The path is equalizer, gain, limiter, on planar stereo. All implementations use only these types, so that they can be
// compared bit for bit.
#pragma once

#include "engine/EqualizerDesign.h"
#include "engine/GainSmoother.h"
#include "engine/PeakLimiter.h"

#include <cmath>

namespace fadeloom {

/// Lives as long as the tap; a rebuilt tap starts with a new one.
struct RenderState {
    EQChannelState left{};
    EQChannelState right{};
    GainSmoother gain{};  // Volume and mute.
    GainSmoother duck{};
    PeakLimiter limiter{};

    friend bool operator==(const RenderState&, const RenderState&) = default;
};

/// Constant for one cycle. Gains are linear.
struct RenderSettings {
    float gainTarget = 1;
    float duckTarget = 1;
    bool isEqualized = false;
    float preamp = 1;  // Only while equalized, like the sections.
    const EQCoefficients& sections;  // Finite numbers.
};

/// Equalizer output below this is flushed to 0: otherwise an inaudible tail would end in denormals, which are slow.
inline constexpr double eqOutputFlush = 1e-25;

/// A NaN or infinite sample is replaced by silence. Otherwise the filter state would keep it, and silence the app until
/// its tap is rebuilt.
[[nodiscard]] inline float finiteOrSilence(float sample) noexcept
{
    return std::isfinite(sample) ? sample : 0.0F;
}

}  // namespace fadeloom
