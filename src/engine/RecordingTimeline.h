// SPDX-License-Identifier: MIT
// Assembles the cycles of an app into one recording that is as long as the elapsed time.
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

/// Silent where there was no cycle; overlapping cycles of several devices are summed. Stereo, interleaved. Thread:
/// main.
class RecordingTimeline {
public:
    /// `clocks` are shared with other recordings and must outlive this. `sampleRate`: hertz. `start`: the time of the
    /// first frame.
    RecordingTimeline(CycleClocks& clocks, double sampleRate, HostTime start);

    /// Adds a cycle. The part before what has already been taken is dropped.
    void add(const CycleTime& time, std::span<const float> samples);
    /// Takes everything before `moment` that has not been taken yet.
    [[nodiscard]] std::vector<float> takeUntil(HostTime moment);
    /// Takes the rest, including silence up to `end`. Audio that plays until the end is neither cut nor padded: it may
    /// end up to a cycle and 20 ms earlier, because the cycle that contains `end` is missing.
    [[nodiscard]] std::vector<float> takeRest(HostTime end);

private:
    struct Source {
        std::int64_t offset = 0;  // From its clock's timeline to positions in the recording.
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
