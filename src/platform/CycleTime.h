// SPDX-License-Identifier: MIT
// When an IO cycle runs.
#pragma once

#include <chrono>
#include <cstdint>

namespace fadeloom {

/// A moment on the audio system's own clock, which runs evenly and is never set: nanoseconds since a start of its own.
using HostTime = std::chrono::nanoseconds;

/// A cycle's beginning, counted twice: in frames of the clock that drives the cycle, and by the host.
struct CycleTime {
    std::uint32_t clock = 0;  // Frames of the same clock can be compared, whichever tap counted them.
    std::int64_t frame = 0;  // Goes on while the clock's device runs; may jump when it was stopped.
    HostTime host{};

    friend bool operator==(const CycleTime&, const CycleTime&) = default;
};

}  // namespace fadeloom
