// SPDX-License-Identifier: MIT
// Detects when the thread that all audio runs through stalls.
#pragma once

#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <functional>

struct pw_data_loop;
struct pw_loop;
struct spa_loop;
struct spa_source;

namespace fadeloom {

/// Pings the data loop periodically. Thread: that of `loop`.
class Heartbeat {
public:
    static constexpr std::chrono::milliseconds interval{80};
    /// This many intervals without a reply are a stall.
    static constexpr int missesAllowed = 4;
    /// The same for a thread that is starved of CPU: on a loaded machine that passes, and releasing the applications
    /// would end their recordings.
    static constexpr int missesAllowedWhenStarved = 12;

    struct Callbacks {
        std::function<void()> stalled;
        std::function<void()> recovered;  // After `stalled`, once there is a reply.
    };

    /// Initially inactive. Must outlive the data loop's thread.
    Heartbeat(pw_loop* loop, pw_data_loop* dataLoop, Callbacks callbacks);
    ~Heartbeat();
    Heartbeat(const Heartbeat&) = delete;
    Heartbeat& operator=(const Heartbeat&) = delete;

    /// Inactive, it costs nothing. A stall is tracked to its end in either case.
    void setActive(bool isActive);
    [[nodiscard]] bool isStalled() const { return isStalled_; }

private:
    static void onTimer(void* self, std::uint64_t expirations);
    static int onBeat(
        spa_loop* loop, bool async, std::uint32_t beat, const void* data, std::size_t size, void* self);
    void check();
    [[nodiscard]] std::chrono::nanoseconds cpuTime() const;
    [[nodiscard]] bool isStarved() const;
    void setTimer(bool isRunning);

    pw_loop* const loop_;
    pw_data_loop* const dataLoop_;
    const Callbacks callbacks_;
    spa_source* timer_;
    bool isActive_ = false;
    bool isStalled_ = false;
    int misses_ = 0;
    std::uint32_t asked_ = 0;
    std::chrono::nanoseconds cpuTimeAtPing_{};
    // Relaxed, like the next: they guard no other memory.
    std::atomic<std::uint32_t> answered_ = 0;
    // The data loop's thread and the clock of its CPU time; 0 before its first reply.
    std::atomic<pid_t> thread_ = 0;
    std::atomic<clockid_t> cpuClock_ = 0;
};

}  // namespace fadeloom
