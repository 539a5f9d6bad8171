// SPDX-License-Identifier: MIT
// The lock between the main thread and one IO thread.
//
// The IO thread only tries it; the main thread holds it for a handful of stores. So only the main thread may block, for
// as long as the IO thread takes to copy one small record. On macOS it is the system's lock, which donates the waiting
// thread's priority to the holder. Elsewhere a spin that yields is sufficient.
#pragma once

#if __has_include(<os/lock.h>)
#include <os/lock.h>
#else
#include <atomic>
#include <thread>
#endif

namespace fadeloom {

/// Satisfies Lockable, so `std::scoped_lock` and `std::unique_lock` work with it. Not movable.
class UnfairLock {
public:
    UnfairLock() = default;
    UnfairLock(const UnfairLock&) = delete;
    UnfairLock& operator=(const UnfairLock&) = delete;

#if __has_include(<os/lock.h>)
    /// Thread: main. May block.
    void lock() noexcept { os_unfair_lock_lock(&lock_); }
    /// Never blocks. Thread: any.
    [[nodiscard]] bool try_lock() noexcept { return os_unfair_lock_trylock(&lock_); }
    /// Thread: the holder.
    void unlock() noexcept { os_unfair_lock_unlock(&lock_); }

private:
    os_unfair_lock lock_ = OS_UNFAIR_LOCK_INIT;
#else
    /// Thread: main. May block.
    void lock() noexcept
    {
        while (!try_lock())
            std::this_thread::yield();
    }
    /// Never blocks. Thread: any.
    [[nodiscard]] bool try_lock() noexcept
    {
        // Acquire: sees everything that the previous holder wrote.
        return !isHeld_.exchange(true, std::memory_order_acquire);
    }
    /// Thread: the holder. The IO thread makes no system call here: it has no waiter to wake.
    void unlock() noexcept { isHeld_.store(false, std::memory_order_release); }

private:
    std::atomic<bool> isHeld_ = false;
    static_assert(std::atomic<bool>::is_always_lock_free);
#endif
};

}  // namespace fadeloom
