// SPDX-License-Identifier: MIT
// Limits peaks to about −1 dBFS: instant attack, exponential release, no lookahead.
#pragma once

#include "base/RealTime.h"

namespace fadeloom {

struct PeakLimiter {
    float reduction = 1;  // The gain of the last frame; 1 is none.
    float release = 1;  // Fraction of the remaining distance to 1 covered per frame.

    /// The gain for a frame whose louder sample has this magnitude, at least 0.
    [[nodiscard]] float reductionFor(float peak) noexcept FADELOOM_NONBLOCKING
    {
        const float next = recovered();
        reduction = next * peak > ceiling ? ceiling / peak : next;
        return reduction;
    }

    /// The gain for the next frame if it is silent.
    [[nodiscard]] float recovered() const noexcept FADELOOM_NONBLOCKING
    {
        return reduction + (1 - reduction) * release;
    }

    static constexpr float ceiling = 0.891F;

    friend bool operator==(const PeakLimiter&, const PeakLimiter&) = default;
};

}  // namespace fadeloom
