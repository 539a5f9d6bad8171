// SPDX-License-Identifier: MIT
// How much louder an equalizer curve makes sound as a whole.
//
// Boosted bands raise the level and drive the limiter. Taking this figure off the preamp keeps the level where it was,
// so that the equalizer changes the tone alone.
#pragma once

#include <span>

namespace fadeloom {

/// Mean power gain of the curve from 20 Hz to 20 kHz, in decibels, never below 0: what a curve takes away is not given
/// back. `gains`: as for `eqCoefficients`. `sampleRate`: hertz.
[[nodiscard]] float eqLoudnessGainDB(std::span<const float> gains, double sampleRate);

}  // namespace fadeloom
