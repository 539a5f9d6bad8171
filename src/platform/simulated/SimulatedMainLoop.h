// SPDX-License-Identifier: MIT
// The main thread of a simulated world. Nothing runs until `runPosted` or `advance` is called.
#pragma once

#include "platform/MainLoop.h"
#include "platform/simulated/SimulatedClock.h"

#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace fadeloom {

/// The thread that makes it is the main thread.
class SimulatedMainLoop final : public MainLoop {
public:
    explicit SimulatedMainLoop(SimulatedClock& clock);

    void post(Task task) override;
    Subscription after(std::chrono::milliseconds delay, Task task) override;
    Subscription every(std::chrono::milliseconds interval, Task task) override;
    /// False as well on the main thread while it plays the part of another one (`OtherThread`).
    bool isCurrent() const override;

    /// Runs turns of the loop until nothing is posted any more.
    void runPosted();
    /// Runs one turn: what is posted now. What these tasks post waits for the next turn.
    void runTurn();
    /// Moves the clock, with everything that falls due on the way, each followed by what it posted.
    void advance(SimulatedClock::Duration duration);

    /// How many timers run.
    [[nodiscard]] long timerCount() const;

    /// While one lives, its thread does the work of another thread (an IO thread, a queue's).
    class OtherThread {
    public:
        OtherThread();
        ~OtherThread();
        OtherThread(const OtherThread&) = delete;
        OtherThread& operator=(const OtherThread&) = delete;
    };

private:
    struct Timer;

    Subscription startTimer(std::shared_ptr<Timer> timer, SimulatedClock::Duration delay);

    SimulatedClock& clock_;
    const std::thread::id thread_ = std::this_thread::get_id();
    std::mutex mutex_;
    std::deque<Task> posted_;
    std::vector<std::weak_ptr<Timer>> timers_;
    // Seen weakly by subscriptions, which may outlive us.
    std::shared_ptr<int> presence_ = std::make_shared<int>();
};

}  // namespace fadeloom
