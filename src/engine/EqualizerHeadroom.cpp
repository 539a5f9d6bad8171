// SPDX-License-Identifier: MIT
#include "engine/EqualizerHeadroom.h"

#include "engine/EqualizerDesign.h"

#include <cmath>

namespace fadeloom {

namespace {

// Logarithmically spaced points, both ends included: every octave has the same weight.
constexpr int pointCount = 241;
constexpr double lowestFrequency = 20;
constexpr double frequencySpan = 1000;  // The ratio of the highest to the lowest.

}  // namespace

float eqLoudnessGainDB(std::span<const float> gains, double sampleRate)
{
    const auto coefficients = eqCoefficients(gains, sampleRate);
    double power = 0;
    for (int point = 0; point < pointCount; ++point) {
        const double frequency = lowestFrequency * std::pow(frequencySpan, double(point) / (pointCount - 1));
        power += std::pow(10.0, eqResponseDB(coefficients, frequency, sampleRate) / 10);
    }
    const double loudness = 10 * std::log10(power / pointCount);
    return loudness >= 0 ? static_cast<float>(loudness)
                         : 0.0F;  // Also 0 without a sample rate to design for.
}

}  // namespace fadeloom
