// SPDX-License-Identifier: MIT
// The contents of a sound file, as compared by tests.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <vector>

namespace fadeloom {

/// Interleaved 24-bit samples. Full scale is 2^23 steps.
using Steps = std::vector<std::int32_t>;

struct WrittenSound {
    double sampleRate = 0;  // hertz
    Steps steps;

    friend bool operator==(const WrittenSound&, const WrittenSound&) = default;
};

/// Noise up to full scale.
inline Steps noise(std::size_t frames, unsigned seed)
{
    std::minstd_rand random{seed};
    std::uniform_int_distribution<std::int32_t> anyStep{-(1 << 23), (1 << 23) - 1};
    Steps steps(2 * frames);
    std::ranges::generate(steps, [&] { return anyStep(random); });
    return steps;
}

/// The same audio as floats. Every step is representable, so nothing is rounded.
inline std::vector<float> samplesOf(const Steps& steps)
{
    std::vector<float> samples;
    std::ranges::transform(
        steps, std::back_inserter(samples), [](auto step) { return static_cast<float>(step) / 0x1p23F; });
    return samples;
}

}  // namespace fadeloom
