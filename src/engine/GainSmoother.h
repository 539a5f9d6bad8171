// SPDX-License-Identifier: MIT
// Ramps a gain to its target: a jump would be an audible click.
#pragma once

#include "base/RealTime.h"

#include <algorithm>
#include <cmath>

namespace fadeloom {

/// The per-frame coefficient of a one-pole filter for a time constant in seconds. `sampleRate`: hertz, at least 1.
[[nodiscard]] inline float onePoleCoefficient(double sampleRate, double timeConstant)
{
    // With the arguments in this order NaN becomes 1, too.
    return static_cast<float>(1 - std::exp(-1 / (std::max(1.0, sampleRate) * timeConstant)));
}

struct GainSmoother {
    float current = 1;
    float coefficient = 1;

    /// Advances by one frame, and snaps to the target when close; returns whether it is reached.
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
