// SPDX-License-Identifier: MIT
// What one app's sound goes through, and what is remembered of it from one cycle to the next.
//
// The path is equalizer, gain, limiter, on planar stereo. These types are all that a form of it sees, so that several
// forms can be held against each other bit for bit.
#pragma once

#include "engine/EqualizerDesign.h"
#include "engine/GainSmoother.h"
#include "engine/PeakLimiter.h"

#include <cmath>

namespace fadeloom {

/// Lives as long as the tap; a rebuilt tap begins with a new one.
struct RenderState {
    EQChannelState left{};
    EQChannelState right{};
    GainSmoother gain{};  // Volume and mute.
    GainSmoother duck{};
    PeakLimiter limiter{};

    friend bool operator==(const RenderState&, const RenderState&) = default;
};

/// What holds for one cycle. Gains are linear.
struct RenderSettings {
    float gainTarget = 1;
    float duckTarget = 1;
    bool isEqualized = false;
    float preamp = 1;  // Only while equalized, and so are the sections.
    const EQCoefficients& sections;  // Finite numbers.
};

/// What the equalizer puts out below this is written as 0: a tail that nobody hears would otherwise end in numbers that
/// processors are slow with.
inline constexpr double eqOutputFlush = 1e-25;

/// A sample that is no number or infinite counts as silence. The filters remember what they are given: one such sample
/// would silence the app until its tap is rebuilt.
[[nodiscard]] inline float finiteOrSilence(float sample) noexcept
{
    return std::isfinite(sample) ? sample : 0.0F;
}

}  // namespace fadeloom
