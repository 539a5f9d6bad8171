// SPDX-License-Identifier: MIT
// Keeps peaks below about −1 dBFS: at once when one comes, letting go slowly after it. It looks at no frame ahead.
#pragma once

#include "base/RealTime.h"

namespace fadeloom {

struct PeakLimiter {
    float reduction = 1;  // The gain of the last frame; 1 is none.
    float release = 1;  // Part of the way back to 1 that each frame goes.

    /// The gain for a frame whose louder sample has this magnitude, not below 0.
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
