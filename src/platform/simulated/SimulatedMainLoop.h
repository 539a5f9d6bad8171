// SPDX-License-Identifier: MIT
// The main loop of a simulation. Nothing runs until `runPosted` or `advance` is called.
#pragma once

#include "platform/MainLoop.h"
#include "platform/simulated/SimulatedClock.h"

#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace fadeloom {

/// The thread that creates it is the main thread.
class SimulatedMainLoop final : public MainLoop {
public:
    explicit SimulatedMainLoop(SimulatedClock& clock);

    void post(Task task) override;
    Subscription after(std::chrono::milliseconds delay, Task task) override;
    Subscription every(std::chrono::milliseconds interval, Task task) override;
    /// Also false while the main thread plays the part of another one (`OtherThread`).
    bool isCurrent() const override;

    /// Runs iterations of the loop until nothing is posted any more.
    void runPosted();
    /// Runs one iteration: the tasks posted so far. What they post waits for the next one.
    void runTurn();
    /// Advances the clock and runs everything that becomes due, each followed by what it posted.
    void advance(SimulatedClock::Duration duration);

    /// The number of active timers.
    [[nodiscard]] long timerCount() const;

    /// While an instance exists, its thread plays the part of another thread (an IO thread, a queue's).
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
    // Subscriptions, which may outlive us, hold a weak reference.
    std::shared_ptr<int> presence_ = std::make_shared<int>();
};

}  // namespace fadeloom
