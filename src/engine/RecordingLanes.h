// SPDX-License-Identifier: MIT
// Passes the cycles of an app's renderers, with their timestamps, to the recording that assembles them.
//
// An app that plays on two devices has two renderers, and a renderer may start before the one it replaces is gone. Each
// has its own lane for its lifetime, so they never block each other.
#pragma once

#include "base/RealTime.h"
#include "base/SpscRing.h"
#include "platform/CycleTime.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace fadeloom {

class RecordingLanes {
public:
    static constexpr std::size_t channels = 2;
    /// How long cycles are buffered for the main thread before they are dropped, in seconds.
    static constexpr std::size_t capacity = 4;

    /// One cycle's audio; `samples` are interleaved and valid only during the call.
    using Visitor = std::function<void(const CycleTime& time, std::span<const float> samples)>;

    /// `sampleRate`: hertz. Thread: main.
    explicit RecordingLanes(double sampleRate);
    RecordingLanes(const RecordingLanes&) = delete;
    RecordingLanes& operator=(const RecordingLanes&) = delete;

    /// Pushes one cycle of the renderer `writer`, whose `samples` are interleaved and at `sampleRate`. It is dropped if
    /// the rate differs from the recording's, or if the lane is full. Thread: IO.
    void push(const void* writer, double sampleRate, const CycleTime& time,
        std::span<const float> samples) noexcept FADELOOM_NONBLOCKING;
    /// Frees the lane of a destroyed renderer. Thread: any, after its last `push`.
    void release(const void* writer) noexcept;

    /// Delivers all cycles pushed since the last call, lane by lane and in order within each. Thread: main.
    void drain(const Visitor& visit);
    /// Frames that were dropped because a lane was full. Thread: any.
    [[nodiscard]] std::uint64_t lostFrames() const noexcept
    {
        return lostFrames_.load(std::memory_order_relaxed);
    }

private:
    struct Cycle {
        CycleTime time;
        std::size_t sampleCount = 0;
    };
    struct Lane {
        explicit Lane(std::size_t leastSamples);

        // Acquire and release: the new owner of a lane sees everything that the previous one pushed.
        std::atomic<const void*> writer = nullptr;
        SpscRing<Cycle> cycles;
        SpscRing<float> samples;
    };

    [[nodiscard]] Lane* laneOf(const void* writer) noexcept FADELOOM_NONBLOCKING;

    const double sampleRate_;
    std::array<std::unique_ptr<Lane>, 4> lanes_;
    std::atomic<std::uint64_t> lostFrames_ = 0;  // Relaxed: an independent count.
    std::vector<float> drained_;
};

}  // namespace fadeloom
