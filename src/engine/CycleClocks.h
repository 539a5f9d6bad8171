// SPDX-License-Identifier: MIT
// A line of frames for each clock that drives cycles, on which every cycle has its place, also after a pause.
//
// While a device runs, its own count places a cycle to the sample. After a stop the count may have stood still or begun
// again; then the host's clock says how much time has passed. Recordings share these lines, so that a cycle has one
// place for all of them and they stay in step to the sample.
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
    /// How far a device's count and the host's clock may part before the host's is believed. Below it are a host that
    /// was late and a device that runs a little faster or slower.
    static constexpr HostTime tolerance = std::chrono::milliseconds{20};

    /// The place of a cycle on the line of its clock.
    [[nodiscard]] std::int64_t frameAt(const CycleTime& time, double rate, std::int64_t cycleLength);
    /// The place of a moment on the line of a clock from which a cycle has come.
    [[nodiscard]] std::int64_t frameAt(HostTime moment, std::uint32_t clock, double rate) const;

    void forget() { lines_.clear(); }

private:
    /// Cycles without a jump between them.
    struct Run {
        [[nodiscard]] bool continues(const CycleTime& time, double rate) const;
        [[nodiscard]] std::int64_t frameAt(HostTime moment, double rate) const;

        CycleTime last;
        std::int64_t frame = 0;  // The place of `last`.
        std::int64_t end = 0;  // The place after it.
        HostTime lag{};  // By how much the host is ahead of the count, but for the drift that devices have.
    };
    using Line = std::vector<Run>;  // The oldest first.

    std::map<std::pair<std::uint32_t, double>, Line> lines_;
};

/// How many frames of `rate` hertz go into a time, rounded.
[[nodiscard]] std::int64_t frameCount(HostTime time, double rate);

}  // namespace fadeloom
