// SPDX-License-Identifier: MIT
// Where a renderer finds the recording that its cycles go to, and how the main thread learns that it has let go of it.
//
// A recording that is taken away may still be in use by a cycle that found it before, and nothing says that another
// cycle follows. So a cycle announces itself before it looks for the recording and signs off after the write. Once the
// recording has been taken away and nobody is announced, no cycle can reach it any more: a later one finds none.
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

    /// From now on cycles go to this recording, or to none. Thread: main.
    void set(std::shared_ptr<RecordingLanes> lanes);
    /// Whether there is a recording. Thread: any.
    [[nodiscard]] bool isRecording() const noexcept FADELOOM_NONBLOCKING
    {
        return lanes_.load(std::memory_order_relaxed) != nullptr;
    }
    /// Lets go of every recording that was taken away; false, and nothing is let go of, while a cycle may be writing.
    /// Once it is true no cycle reaches them any more. Thread: main.
    [[nodiscard]] bool letGo();

    /// Hands a cycle over, if there is still a recording: see `RecordingLanes`. Thread: IO.
    void write(const void* writer, double sampleRate, const CycleTime& time,
        std::span<const float> samples) noexcept FADELOOM_NONBLOCKING;
    /// The renderer is at its end. Thread: any, after its last `write`.
    void release(const void* writer) noexcept;

private:
    template <typename Use>
    void use(const Use& use) noexcept FADELOOM_NONBLOCKING;

    // Sequentially consistent: either the cycle finds the recording gone, or whoever took it away finds the cycle
    // announced.
    std::atomic<RecordingLanes*> lanes_ = nullptr;
    std::atomic<int> users_ = 0;
    static_assert(std::atomic<RecordingLanes*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

    std::vector<std::shared_ptr<RecordingLanes>> kept_;  // The present one, and those that were taken away.
};

}  // namespace fadeloom
