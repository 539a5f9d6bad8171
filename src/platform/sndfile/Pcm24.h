// SPDX-License-Identifier: MIT
// Turns floating-point samples into the 24-bit ones of a file.
#pragma once

#include <cstdint>
#include <span>

namespace fadeloom {

/// Full scale, 1, is 2^23 steps. Each sample goes to the nearest step, one halfway to the even step; what is beyond
/// -2^23 and 2^23 - 1 is clipped, the infinities included; what is no number is silence, as it is to the renderer.
///
/// The steps stand in the upper 24 bits of each result, where libsndfile takes them from without scaling or rounding of
/// its own. `result` has as many elements as `samples`. Thread: any, rounding to nearest as threads do from the start.
void convertToPcm24(std::span<const float> samples, std::span<std::int32_t> result) noexcept;

}  // namespace fadeloom
