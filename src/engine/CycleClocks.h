// SPDX-License-Identifier: MIT
// A timeline in frames for each clock that drives cycles, which places every cycle, even after a pause.
//
// While a device runs, its frame count places a cycle with sample accuracy. After a stop the count may have been frozen
// or restarted; then the host's clock tells how much time has passed. Recordings share these timelines, so that a cycle
// has the same position in all of them and they stay sample-aligned.
#pragma once

#include "platform/CycleTime.h"

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace fadeloom {

/// Rates are in hertz, lengths in frames. Thread: main.
class CycleClocks {
public:
    /// By how much a device's count and the host's clock may diverge before the host's clock wins. Less is attributed
    /// to host jitter and to the device's clock drift.
    static constexpr HostTime tolerance = std::chrono::milliseconds{20};

    /// The position of a cycle on its clock's timeline.
    [[nodiscard]] std::int64_t frameAt(const CycleTime& time, double rate, std::int64_t cycleLength);
    /// The position of a time on the timeline of a clock that has driven a cycle.
    [[nodiscard]] std::int64_t frameAt(HostTime moment, std::uint32_t clock, double rate) const;

    void forget() { lines_.clear(); }

private:
    /// Cycles without a discontinuity.
    struct Run {
        [[nodiscard]] bool continues(const CycleTime& time, double rate) const;
        [[nodiscard]] std::int64_t frameAt(HostTime moment, double rate) const;

        CycleTime last;
        std::int64_t frame = 0;  // The position of `last`.
        std::int64_t end = 0;  // The position after it.
        HostTime lag{};  // The host's lead over the count, compensated for drift.
    };
    using Line = std::vector<Run>;  // The oldest first.

    std::map<std::pair<std::uint32_t, double>, Line> lines_;
};

/// The number of frames at `rate` hertz in a duration, rounded.
[[nodiscard]] std::int64_t frameCount(HostTime time, double rate);

}  // namespace fadeloom
