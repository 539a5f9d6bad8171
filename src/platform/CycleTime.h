// SPDX-License-Identifier: MIT
// Timestamps of IO cycles.
#pragma once

#include <chrono>
#include <cstdint>

namespace fadeloom {

/// Nanoseconds on the audio system's monotonic clock, since an arbitrary epoch.
using HostTime = std::chrono::nanoseconds;

/// The start of a cycle, in frames of the clock that drives it, and on the host's clock.
struct CycleTime {
    std::uint32_t clock = 0;  // Frame counts of the same clock are comparable across taps.
    std::int64_t frame = 0;  // Monotonic while the clock's device runs; may jump after it was stopped.
    HostTime host{};

    friend bool operator==(const CycleTime&, const CycleTime&) = default;
};

}  // namespace fadeloom
