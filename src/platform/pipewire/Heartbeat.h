// SPDX-License-Identifier: MIT
// Notices when the thread that all sound runs through does no work any more.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>

struct pw_data_loop;
struct pw_loop;
struct spa_loop;
struct spa_source;

namespace fadeloom {

/// Asks the data loop for an answer again and again. Thread: that of `loop`.
class Heartbeat {
public:
    static constexpr std::chrono::milliseconds interval{80};
    /// So many intervals without an answer are a stall: about a second. On a loaded machine a thread that works may be
    /// held up for a quarter of one, and to let go of the applications then would end their recordings.
    static constexpr int missesAllowed = 12;

    struct Callbacks {
        std::function<void()> stalled;
        std::function<void()> recovered;  // After `stalled`, once there is an answer.
    };

    /// At rest at first. Must outlive the data loop's thread.
    Heartbeat(pw_loop* loop, pw_data_loop* dataLoop, Callbacks callbacks);
    ~Heartbeat();
    Heartbeat(const Heartbeat&) = delete;
    Heartbeat& operator=(const Heartbeat&) = delete;

    /// Runs, or rests: then it costs nothing. A stall is followed to its end either way.
    void setActive(bool isActive);
    [[nodiscard]] bool isStalled() const { return isStalled_; }

private:
    static void onTimer(void* self, std::uint64_t expirations);
    static int onBeat(
        spa_loop* loop, bool async, std::uint32_t beat, const void* data, std::size_t size, void* self);
    void check();
    void setTimer(bool isRunning);

    pw_loop* const loop_;
    pw_data_loop* const dataLoop_;
    const Callbacks callbacks_;
    spa_source* timer_;
    bool isActive_ = false;
    bool isStalled_ = false;
    int misses_ = 0;
    std::uint32_t asked_ = 0;
    std::atomic<std::uint32_t> answered_ = 0;  // Relaxed: it promises nothing about other memory.
};

}  // namespace fadeloom
