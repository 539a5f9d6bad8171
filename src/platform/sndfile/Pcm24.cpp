// SPDX-License-Identifier: MIT
#include "platform/sndfile/Pcm24.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>

namespace fadeloom {

namespace {

constexpr float fullScale = 0x1p23F;
constexpr std::int32_t highestStep = (1 << 23) - 1;
constexpr std::int32_t upperBits = 1 << 8;

// No branches and no library calls, so that compilers can vectorize the loop below.
std::int32_t stepOf(float sample)
{
    const float number = std::isnan(sample) ? 0 : sample;
    const float magnitude = std::min(std::fabs(number) * fullScale, fullScale);
    // From 2^23 to 2^24 floats are whole numbers, so the addition rounds, to even.
    const float rounded = (magnitude + fullScale) - fullScale;
    return std::min(static_cast<std::int32_t>(std::copysign(rounded, number)), highestStep);
}

}  // namespace

void convertToPcm24(std::span<const float> samples, std::span<std::int32_t> result) noexcept
{
    assert(samples.size() == result.size());
    for (std::size_t i = 0; i < samples.size(); ++i)
        result[i] = stepOf(samples[i]) * upperBits;
}

}  // namespace fadeloom
