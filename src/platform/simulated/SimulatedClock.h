// SPDX-License-Identifier: MIT
// The time of a simulated world: it stands still until someone moves it.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <utility>

namespace fadeloom {

/// Holds what is to happen at later moments. Thread: any, but only one thread moves it.
class SimulatedClock {
public:
    using Duration = std::chrono::nanoseconds;
    using EventID = std::uint64_t;

    /// Time that has passed since the world began.
    [[nodiscard]] Duration now() const;
    /// Has `event` run `delay` from now. Events of the same moment run in the order given.
    EventID schedule(Duration delay, std::function<void()> event);
    /// Takes an event back that has not begun; an unknown id is ignored.
    void cancel(EventID id);
    /// Moves to the next event due by `end` and runs it. False when there is none.
    bool runNextBy(Duration end);
    /// Moves to `moment` without running anything; never backwards.
    void moveTo(Duration moment);

private:
    mutable std::mutex mutex_;
    Duration now_{0};
    EventID nextID_ = 1;
    std::map<std::pair<Duration, EventID>, std::function<void()>> events_;
};

}  // namespace fadeloom
