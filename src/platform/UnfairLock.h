// SPDX-License-Identifier: MIT
// The lock between the main thread and one IO thread.
//
// The IO thread only ever tries it; the main thread holds it for a handful of stores. So the one who may wait is the
// main thread, for as long as the IO thread takes to copy one small record, and a spin that gives way is enough. The IO
// thread makes no system call: unlocking wakes nobody.
#pragma once

#include <atomic>
#include <thread>

namespace fadeloom {

/// Meets the standard's Lockable, so `std::scoped_lock` and `std::unique_lock` work on it.
class UnfairLock {
public:
    /// Thread: main. May wait.
    void lock() noexcept
    {
        while (!try_lock())
            std::this_thread::yield();
    }
    /// Never waits. Thread: any.
    [[nodiscard]] bool try_lock() noexcept
    {
        // Acquire: what the last holder wrote is seen by this one.
        return !isHeld_.exchange(true, std::memory_order_acquire);
    }
    /// Thread: the holder.
    void unlock() noexcept { isHeld_.store(false, std::memory_order_release); }

private:
    std::atomic<bool> isHeld_ = false;
    static_assert(std::atomic<bool>::is_always_lock_free);
};

}  // namespace fadeloom
