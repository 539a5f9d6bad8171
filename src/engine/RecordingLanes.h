// SPDX-License-Identifier: MIT
// Carries the cycles of an app's renderers, each with its time, to the recording that puts them together.
//
// An app that plays on two devices has two renderers, and a renderer may begin before the one it replaces is gone. Each
// has a lane of its own for as long as it lives, so none waits for another.
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
    /// How long cycles wait for the main thread before they are lost, in seconds.
    static constexpr std::size_t capacity = 4;

    /// One cycle's sound; `samples` are interleaved and live for the call only.
    using Visitor = std::function<void(const CycleTime& time, std::span<const float> samples)>;

    /// `sampleRate`: hertz. Thread: main.
    explicit RecordingLanes(double sampleRate);
    RecordingLanes(const RecordingLanes&) = delete;
    RecordingLanes& operator=(const RecordingLanes&) = delete;

    /// Takes one cycle of the renderer `writer`, whose `samples` are interleaved and at `sampleRate`. It is lost when
    /// the rate is another one than the recording's, and when there is no room. Thread: IO.
    void push(const void* writer, double sampleRate, const CycleTime& time,
        std::span<const float> samples) noexcept FADELOOM_NONBLOCKING;
    /// The renderer is at its end: its lane is free for another one. Thread: any, after its last `push`.
    void release(const void* writer) noexcept;

    /// Hands out what was pushed and not handed out yet, lane by lane and in order within each. Thread: main.
    void drain(const Visitor& visit);
    /// Frames for which there was no room. Thread: any.
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

        // Acquire and release: who takes over a lane sees all that its former writer pushed.
        std::atomic<const void*> writer = nullptr;
        SpscRing<Cycle> cycles;
        SpscRing<float> samples;
    };

    [[nodiscard]] Lane* laneOf(const void* writer) noexcept FADELOOM_NONBLOCKING;

    const double sampleRate_;
    std::array<std::unique_ptr<Lane>, 4> lanes_;
    std::atomic<std::uint64_t> lostFrames_ = 0;  // Relaxed: a count with nothing behind it.
    std::vector<float> drained_;
};

}  // namespace fadeloom
