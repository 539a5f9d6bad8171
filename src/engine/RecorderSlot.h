// SPDX-License-Identifier: MIT
// Where a renderer finds the file that it records into, and how the main thread learns that it has let go of it.
//
// A file that is taken away may still be in use by a cycle that found it before, and nothing says that another cycle
// follows. So a cycle announces itself before it looks for the file and signs off after the write. Once the file has
// been taken away and nobody is announced, no cycle can reach it any more: a later one finds none.
#pragma once

#include "base/RealTime.h"
#include "platform/AudioFiles.h"

#include <atomic>
#include <cstdint>

namespace fadeloom {

class RecorderSlot {
public:
    RecorderSlot() = default;
    RecorderSlot(const RecorderSlot&) = delete;
    RecorderSlot& operator=(const RecorderSlot&) = delete;

    /// From now on cycles write to this file, or to none. The file is not owned. Thread: main.
    void set(AudioFile* file) noexcept
    {
        forgetWriter();
        file_.store(file, std::memory_order_seq_cst);
    }
    /// The next renderer that writes is the only one from then on: an app on two devices has two, and their cycles do
    /// not belong behind one another. To be called before a renderer takes over from another. Thread: main.
    void forgetWriter() noexcept { writer_.store(nullptr, std::memory_order_relaxed); }
    [[nodiscard]] AudioFile* file() const noexcept { return file_.load(std::memory_order_relaxed); }
    /// Whether a cycle may be writing now; if not, a file that was taken away before the question may be closed.
    /// Thread: main.
    [[nodiscard]] bool isInUse() const noexcept { return writers_.load(std::memory_order_seq_cst) != 0; }

    /// Whether there is a file to write to, as a hint that may be out of date. Thread: IO.
    [[nodiscard]] bool hasFile() const noexcept FADELOOM_NONBLOCKING
    {
        return file_.load(std::memory_order_relaxed) != nullptr;
    }
    /// Writes to the file if there is still one and no other renderer writes to it. `writer`: which renderer. Thread: IO.
    void write(
        const void* writer, std::uint32_t frameCount, const float* samples) noexcept FADELOOM_NONBLOCKING;

private:
    // Sequentially consistent: either the cycle finds the file gone, or whoever took it away finds the cycle announced.
    std::atomic<AudioFile*> file_ = nullptr;
    std::atomic<int> writers_ = 0;
    std::atomic<const void*> writer_ = nullptr;  // Relaxed: a name to compare, with nothing behind it.
    static_assert(std::atomic<AudioFile*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);
};

}  // namespace fadeloom
