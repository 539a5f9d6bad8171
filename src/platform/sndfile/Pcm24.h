// SPDX-License-Identifier: MIT
// Converts floating-point samples to 24-bit ones.
#pragma once

#include <cstdint>
#include <span>

namespace fadeloom {

/// Full scale, 1, is 2^23 steps. Each sample is rounded to the nearest step, ties to even; values beyond -2^23 and
/// 2^23 - 1 are clipped, including infinities; NaN becomes silence, as in the renderer.
///
/// The steps are in the upper 24 bits of each result, from which libsndfile extracts them without scaling or rounding.
/// `result` has as many elements as `samples`. Thread: any, with the default rounding mode.
void convertToPcm24(std::span<const float> samples, std::span<std::int32_t> result) noexcept;

}  // namespace fadeloom
