// SPDX-License-Identifier: MIT
// A lock-free ring buffer between one producer thread and one consumer thread.
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

/// Single producer, single consumer.
template <typename T>
    requires std::is_trivially_copyable_v<T>
class SpscRing {
public:
    /// Has capacity for at least `leastCapacity` items. All memory is allocated and touched here, which spares the
    /// producer page faults.
    explicit SpscRing(std::size_t leastCapacity)
        : items_(std::bit_ceil(leastCapacity))
    {
    }
    SpscRing(const SpscRing&) = delete;
    SpscRing& operator=(const SpscRing&) = delete;

    /// In items; a power of two.
    [[nodiscard]] std::size_t capacity() const noexcept { return items_.size(); }

    /// The number of items that can be pushed now; the consumer may only increase it. Thread: the producer.
    [[nodiscard]] std::size_t room() const noexcept FADELOOM_NONBLOCKING
    {
        // Acquire: the consumer has finished reading the slots that are reused.
        const std::uint64_t released = released_.load(std::memory_order_acquire);
        return capacity() - static_cast<std::size_t>(pushed_.load(std::memory_order_relaxed) - released);
    }

    /// Pushes all of `items`, or none if they do not fit. Thread: the producer.
    [[nodiscard]] bool push(std::span<const T> items) noexcept FADELOOM_NONBLOCKING
    {
        if (items.size() > room())
            return false;
        const std::uint64_t pushed = pushed_.load(std::memory_order_relaxed);  // Only this thread changes it.
        const std::size_t begin = placeOf(pushed);
        const std::size_t untilEnd = std::min(items.size(), capacity() - begin);
        std::copy_n(items.data(), untilEnd, items_.data() + begin);
        std::copy_n(items.data() + untilEnd, items.size() - untilEnd, items_.data());
        // Release: whoever sees the new count sees the items.
        pushed_.store(pushed + items.size(), std::memory_order_release);
        return true;
    }

    /// The oldest items, as many as are contiguous; empty if there are none. They remain valid until they are released.
    /// Thread: the consumer.
    [[nodiscard]] std::span<const T> oldest() const noexcept
    {
        const std::uint64_t pushed = pushed_.load(std::memory_order_acquire);
        // Only this thread changes it.
        const std::uint64_t released = released_.load(std::memory_order_relaxed);
        const std::size_t begin = placeOf(released);
        const auto count = static_cast<std::size_t>(pushed - released);
        return {items_.data() + begin, std::min(count, capacity() - begin)};
    }
    /// Copies as many of the oldest items as fit in `into` and releases them; returns how many. Thread: the consumer.
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
    /// Releases the `count` oldest items, at most as many as there are. Thread: the consumer.
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
    // Monotonic counts. On separate cache lines to avoid false sharing.
    alignas(cacheLine) std::atomic<std::uint64_t> pushed_ = 0;
    alignas(cacheLine) std::atomic<std::uint64_t> released_ = 0;
    static_assert(std::atomic<std::uint64_t>::is_always_lock_free);
};

}  // namespace fadeloom
