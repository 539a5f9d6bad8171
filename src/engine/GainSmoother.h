// SPDX-License-Identifier: MIT
// Glides a gain to its target: a jump would be heard as a click.
#pragma once

#include "base/RealTime.h"

#include <algorithm>
#include <cmath>

namespace fadeloom {

/// How far a one-pole filter goes towards its target with each frame, for a time constant in seconds. `sampleRate`:
/// hertz, taken as at least 1.
[[nodiscard]] inline float onePoleCoefficient(double sampleRate, double timeConstant)
{
    // In this order a rate that is not a number is taken as 1, too.
    return static_cast<float>(1 - std::exp(-1 / (std::max(1.0, sampleRate) * timeConstant)));
}

struct GainSmoother {
    float current = 1;
    float coefficient = 1;

    /// Goes on by one frame, and onto the target once it is near; whether it is there.
    bool approach(float target) noexcept FADELOOM_NONBLOCKING
    {
        current += (target - current) * coefficient;
        if (!(std::abs(target - current) < snapDistance))
            return false;
        current = target;
        return true;
    }

    static constexpr float snapDistance = 0.0001F;

    friend bool operator==(const GainSmoother&, const GainSmoother&) = default;
};

}  // namespace fadeloom
