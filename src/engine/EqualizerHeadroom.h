// SPDX-License-Identifier: MIT
// By how much an equalizer curve raises the overall level.
//
// Boosted bands raise the level and drive the limiter. Subtracting this value from the preamp preserves the level, so
// that the equalizer affects only the timbre.
#pragma once

#include <span>

namespace fadeloom {

/// Mean power gain of the curve from 20 Hz to 20 kHz, in decibels, at least 0: cuts are not compensated. `gains`: as
/// for `eqCoefficients`. `sampleRate`: hertz.
[[nodiscard]] float eqLoudnessGainDB(std::span<const float> gains, double sampleRate);

}  // namespace fadeloom
