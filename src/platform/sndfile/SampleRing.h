// SPDX-License-Identifier: MIT
// Carries samples from the thread that captures them to the thread that writes them down; neither waits for the other.
#pragma once

#include "base/RealTime.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace fadeloom {

/// One thread pushes, one other thread takes out.
class SampleRing {
public:
    /// Has room for `leastCapacity` samples or more. All of its memory is there from the beginning: the zeros that are
    /// written now spare the producer the page faults.
    explicit SampleRing(std::size_t leastCapacity)
        : samples_(std::bit_ceil(leastCapacity))
    {
    }
    SampleRing(const SampleRing&) = delete;
    SampleRing& operator=(const SampleRing&) = delete;

    /// In samples; a power of two.
    [[nodiscard]] std::size_t capacity() const noexcept { return samples_.size(); }

    /// Copies all of `samples` in, or none of them when there is no room for all. Thread: the producer.
    [[nodiscard]] bool push(std::span<const float> samples) noexcept FADELOOM_NONBLOCKING
    {
        const std::uint64_t pushed = pushed_.load(std::memory_order_relaxed);  // Nobody else changes it.
        // Acquire: the consumer has read what stood where these samples go.
        const std::uint64_t released = released_.load(std::memory_order_acquire);
        if (samples.size() > capacity() - (pushed - released))
            return false;
        const std::size_t begin = placeOf(pushed);
        const std::size_t untilEnd = std::min(samples.size(), capacity() - begin);
        std::copy_n(samples.data(), untilEnd, samples_.data() + begin);
        std::copy_n(samples.data() + untilEnd, samples.size() - untilEnd, samples_.data());
        // Release: whoever sees the new count sees the samples.
        pushed_.store(pushed + samples.size(), std::memory_order_release);
        return true;
    }

    /// The oldest samples, as many of them as lie in one piece; empty when there are none. They stay where they are
    /// until they are released. Thread: the consumer.
    [[nodiscard]] std::span<const float> oldest() const noexcept
    {
        const std::uint64_t pushed = pushed_.load(std::memory_order_acquire);
        const std::uint64_t released = released_.load(std::memory_order_relaxed);  // Nobody else changes it.
        const std::size_t begin = placeOf(released);
        const auto count = static_cast<std::size_t>(pushed - released);
        return {samples_.data() + begin, std::min(count, capacity() - begin)};
    }
    /// Makes room of the `count` oldest samples, at most as many as there are. Thread: the consumer.
    void release(std::size_t count) noexcept
    {
        released_.store(released_.load(std::memory_order_relaxed) + count, std::memory_order_release);
    }

private:
    [[nodiscard]] std::size_t placeOf(std::uint64_t count) const noexcept
    {
        return static_cast<std::size_t>(count & (capacity() - 1));
    }

    static constexpr std::size_t cacheLine = 64;

    std::vector<float> samples_;
    // Counted from the beginning. On cache lines of their own, so that one thread's counting does not slow the other.
    alignas(cacheLine) std::atomic<std::uint64_t> pushed_ = 0;
    alignas(cacheLine) std::atomic<std::uint64_t> released_ = 0;
    static_assert(std::atomic<std::uint64_t>::is_always_lock_free);
};

}  // namespace fadeloom
