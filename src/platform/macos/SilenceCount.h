// SPDX-License-Identifier: MIT
// For how long a tap has delivered only zeros.
#pragma once

#include "base/RealTime.h"
#include "platform/AudioBuffers.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <span>

namespace fadeloom {

class SilenceCount {
public:
    /// Counts one cycle's buffers of the tap. Thread: the device's IO thread.
    void note(AudioBuffers tap) noexcept FADELOOM_NONBLOCKING
    {
        // Only this thread writes. Relaxed: an independent number, read occasionally.
        if (isSilent(tap)) {
            const std::uint64_t former = silentFrames_.load(std::memory_order_relaxed);
            silentFrames_.store(former + framesOf(tap), std::memory_order_relaxed);
        } else {
            silentFrames_.store(0, std::memory_order_relaxed);
            hasHeard_.store(true, std::memory_order_relaxed);
        }
    }

    /// Frames since the last non-zero sample. Thread: any.
    [[nodiscard]] std::uint64_t silentFrames() const { return silentFrames_.load(std::memory_order_relaxed); }

    /// Whether there ever was a non-zero sample. Thread: any.
    [[nodiscard]] bool hasHadSound() const { return hasHeard_.load(std::memory_order_relaxed); }

private:
    static bool isSilent(AudioBuffers tap) noexcept FADELOOM_NONBLOCKING
    {
        for (const AudioBuffer& buffer : tap) {
            const auto* const samples = static_cast<const float*>(buffer.data);
            if (samples == nullptr)
                continue;
            for (std::uint32_t i = 0; i < buffer.byteSize / sizeof(float); ++i)
                if (samples[i] != 0)
                    return false;
        }
        return true;
    }
    static std::uint32_t framesOf(AudioBuffers tap) noexcept FADELOOM_NONBLOCKING
    {
        if (tap.empty() || tap.front().channels == 0)
            return 0;
        return tap.front().byteSize / (tap.front().channels * std::uint32_t{sizeof(float)});
    }

    std::atomic<std::uint64_t> silentFrames_ = 0;
    std::atomic<bool> hasHeard_ = false;
};

}  // namespace fadeloom
