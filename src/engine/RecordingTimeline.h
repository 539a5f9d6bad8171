// SPDX-License-Identifier: MIT
// Puts the cycles of an app together to one sound that is as long as the clock says.
#pragma once

#include "engine/CycleClocks.h"
#include "platform/CycleTime.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <vector>

namespace fadeloom {

/// Silent where no cycle was; where cycles of several devices overlap, their sum. Stereo, interleaved. Thread: main.
class RecordingTimeline {
public:
    /// `clocks` are shared with other recordings and outlive this. `sampleRate`: hertz. `start`: the first moment.
    RecordingTimeline(CycleClocks& clocks, double sampleRate, HostTime start);

    /// Adds a cycle's sound. What would lie before what was taken already is dropped.
    void add(const CycleTime& time, std::span<const float> samples);
    /// Takes what lies before `moment` and was not taken yet.
    [[nodiscard]] std::vector<float> takeUntil(HostTime moment);
    /// Takes all that is left, silence up to `end` included. A sound that plays to the end is neither cut nor padded:
    /// it may end a cycle and 20 ms earlier, for the cycle that `end` lies in is missing.
    [[nodiscard]] std::vector<float> takeRest(HostTime end);

private:
    struct Source {
        std::int64_t offset = 0;  // From the line of its clock to places in this sound.
        std::int64_t cycleLength = 0;
    };

    [[nodiscard]] std::int64_t placeOf(HostTime moment) const;
    [[nodiscard]] Source& sourceOf(const CycleTime& time, std::int64_t frameOnLine, std::int64_t cycleLength);
    [[nodiscard]] std::vector<float> take(std::int64_t end);

    CycleClocks& clocks_;
    const double sampleRate_;
    const HostTime start_;
    std::map<std::uint32_t, Source> sources_;  // By clock.
    std::optional<std::uint32_t> latestClock_;
    std::int64_t taken_ = 0;  // Frames; where `waiting_` begins.
    std::vector<float> waiting_;
};

}  // namespace fadeloom
