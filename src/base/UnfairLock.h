// SPDX-License-Identifier: MIT
// The lock between the main thread and one IO thread.
//
// The IO thread only ever tries it; the main thread holds it for a handful of stores. So the one who may wait is the
// main thread, for as long as the IO thread takes to copy one small record. Where the system has a lock for that, it is
// the system's, which lends the waiting thread's priority to the holder. Elsewhere a spin that gives way is enough.
#pragma once

#if __has_include(<os/lock.h>)
#include <os/lock.h>
#else
#include <atomic>
#include <thread>
#endif

namespace fadeloom {

/// Meets the standard's Lockable, so `std::scoped_lock` and `std::unique_lock` work on it. Stays where it was made.
class UnfairLock {
public:
    UnfairLock() = default;
    UnfairLock(const UnfairLock&) = delete;
    UnfairLock& operator=(const UnfairLock&) = delete;

#if __has_include(<os/lock.h>)
    /// Thread: main. May wait.
    void lock() noexcept { os_unfair_lock_lock(&lock_); }
    /// Never waits. Thread: any.
    [[nodiscard]] bool try_lock() noexcept { return os_unfair_lock_trylock(&lock_); }
    /// Thread: the holder.
    void unlock() noexcept { os_unfair_lock_unlock(&lock_); }

private:
    os_unfair_lock lock_ = OS_UNFAIR_LOCK_INIT;
#else
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
    /// Thread: the holder. The IO thread makes no system call here: it wakes nobody.
    void unlock() noexcept { isHeld_.store(false, std::memory_order_release); }

private:
    std::atomic<bool> isHeld_ = false;
    static_assert(std::atomic<bool>::is_always_lock_free);
#endif
};

}  // namespace fadeloom
