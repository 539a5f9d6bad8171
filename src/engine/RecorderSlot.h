// SPDX-License-Identifier: MIT
// Where a renderer finds the recording for its cycles, and how the main thread learns that it is no longer in use.
//
// A detached recording may still be in use by a cycle that found it earlier, and there may be no further cycle. So a
// cycle announces itself before it looks for the recording and signs off after writing. Once the recording has been
// detached and no cycle is announced, none can reach it any more: later ones find nothing.
#pragma once

#include "base/RealTime.h"
#include "engine/RecordingLanes.h"

#include <atomic>
#include <memory>
#include <span>
#include <vector>

namespace fadeloom {

class RecorderSlot {
public:
    RecorderSlot() = default;
    RecorderSlot(const RecorderSlot&) = delete;
    RecorderSlot& operator=(const RecorderSlot&) = delete;

    /// Sets the recording for further cycles, or none. Thread: main.
    void set(std::shared_ptr<RecordingLanes> lanes);
    /// Whether there is a recording. Thread: any.
    [[nodiscard]] bool isRecording() const noexcept FADELOOM_NONBLOCKING
    {
        return lanes_.load(std::memory_order_relaxed) != nullptr;
    }
    /// Releases all detached recordings; returns false without releasing any while a cycle may be writing. After it has
    /// returned true no cycle reaches them any more. Thread: main.
    [[nodiscard]] bool letGo();

    /// Pushes a cycle, if there still is a recording: see `RecordingLanes`. Thread: IO.
    void write(const void* writer, double sampleRate, const CycleTime& time,
        std::span<const float> samples) noexcept FADELOOM_NONBLOCKING;
    /// Call when the renderer is destroyed. Thread: any, after its last `write`.
    void release(const void* writer) noexcept;

private:
    template <typename Use>
    void use(const Use& use) noexcept FADELOOM_NONBLOCKING;

    // Sequentially consistent: either the cycle finds the recording gone, or the detaching thread finds the cycle
    // announced.
    std::atomic<RecordingLanes*> lanes_ = nullptr;
    std::atomic<int> users_ = 0;
    static_assert(std::atomic<RecordingLanes*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

    std::vector<std::shared_ptr<RecordingLanes>> kept_;  // The current one, and detached ones.
};

}  // namespace fadeloom
