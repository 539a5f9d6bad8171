// SPDX-License-Identifier: MIT
// A queue in a ring between one thread that fills it and one that empties it; neither waits for the other.
#pragma once

#include "base/RealTime.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

namespace fadeloom {

/// One producer, one consumer.
template <typename T>
    requires std::is_trivially_copyable_v<T>
class SpscRing {
public:
    /// Has room for `leastCapacity` items or more. All of its memory is there from the beginning: what is written now
    /// spares the producer the page faults.
    explicit SpscRing(std::size_t leastCapacity)
        : items_(std::bit_ceil(leastCapacity))
    {
    }
    SpscRing(const SpscRing&) = delete;
    SpscRing& operator=(const SpscRing&) = delete;

    /// In items; a power of two.
    [[nodiscard]] std::size_t capacity() const noexcept { return items_.size(); }

    /// How many items can be pushed now; more once the consumer has gone on. Thread: the producer.
    [[nodiscard]] std::size_t room() const noexcept FADELOOM_NONBLOCKING
    {
        // Acquire: the consumer has read the items whose places are used next.
        const std::uint64_t released = released_.load(std::memory_order_acquire);
        return capacity() - static_cast<std::size_t>(pushed_.load(std::memory_order_relaxed) - released);
    }

    /// Copies all of `items` in, or none of them when there is no room for all. Thread: the producer.
    [[nodiscard]] bool push(std::span<const T> items) noexcept FADELOOM_NONBLOCKING
    {
        if (items.size() > room())
            return false;
        const std::uint64_t pushed = pushed_.load(std::memory_order_relaxed);  // Nobody else changes it.
        const std::size_t begin = placeOf(pushed);
        const std::size_t untilEnd = std::min(items.size(), capacity() - begin);
        std::copy_n(items.data(), untilEnd, items_.data() + begin);
        std::copy_n(items.data() + untilEnd, items.size() - untilEnd, items_.data());
        // Release: whoever sees the new count sees the items.
        pushed_.store(pushed + items.size(), std::memory_order_release);
        return true;
    }

    /// The oldest items, as many of them as lie in one piece; empty when there are none. They stay where they are
    /// until they are released. Thread: the consumer.
    [[nodiscard]] std::span<const T> oldest() const noexcept
    {
        const std::uint64_t pushed = pushed_.load(std::memory_order_acquire);
        const std::uint64_t released = released_.load(std::memory_order_relaxed);  // Nobody else changes it.
        const std::size_t begin = placeOf(released);
        const auto count = static_cast<std::size_t>(pushed - released);
        return {items_.data() + begin, std::min(count, capacity() - begin)};
    }
    /// Copies as many of the oldest items as `into` has room for and releases them; returns how many. Thread: the
    /// consumer.
    std::size_t pop(std::span<T> into) noexcept
    {
        std::size_t count = 0;
        while (count < into.size()) {
            const auto piece = oldest().first(std::min(oldest().size(), into.size() - count));
            if (piece.empty())
                break;
            std::ranges::copy(piece, into.begin() + static_cast<std::ptrdiff_t>(count));
            release(piece.size());
            count += piece.size();
        }
        return count;
    }
    /// Makes room of the `count` oldest items, at most as many as there are. Thread: the consumer.
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

    std::vector<T> items_;
    // Counted from the beginning. On cache lines of their own, so that one thread's counting does not slow the other.
    alignas(cacheLine) std::atomic<std::uint64_t> pushed_ = 0;
    alignas(cacheLine) std::atomic<std::uint64_t> released_ = 0;
    static_assert(std::atomic<std::uint64_t>::is_always_lock_free);
};

}  // namespace fadeloom
