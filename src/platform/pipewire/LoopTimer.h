// SPDX-License-Identifier: MIT
// A one-shot timer of a PipeWire loop.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

struct pw_loop;
struct spa_source;

namespace fadeloom {

/// Thread: the loop's, or one that holds its lock.
class LoopTimer {
public:
    /// `expired` is called on the loop's thread.
    LoopTimer(pw_loop* loop, std::function<void()> expired);
    ~LoopTimer();
    LoopTimer(const LoopTimer&) = delete;
    LoopTimer& operator=(const LoopTimer&) = delete;

    /// Expires after `delay`, which is greater than 0; replaces a previously set time.
    void start(std::chrono::milliseconds delay);

private:
    static void onExpired(void* self, std::uint64_t expirations);

    pw_loop* const loop_;
    const std::function<void()> expired_;
    spa_source* const source_;
};

}  // namespace fadeloom
