// SPDX-License-Identifier: MIT
// The time of a simulation, which advances only explicitly.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <utility>

namespace fadeloom {

/// The pending events. Thread: any, but only one thread advances it.
class SimulatedClock {
public:
    using Duration = std::chrono::nanoseconds;
    using EventID = std::uint64_t;

    /// The time since the simulation began.
    [[nodiscard]] Duration now() const;
    /// Schedules `event` after `delay`. Events at the same time run in the order scheduled.
    EventID schedule(Duration delay, std::function<void()> event);
    /// Cancels a pending event; an unknown id is ignored.
    void cancel(EventID id);
    /// Advances to the next event due by `end` and runs it. False if there is none.
    bool runNextBy(Duration end);
    /// Advances to `moment` without running anything; never backwards.
    void moveTo(Duration moment);

private:
    mutable std::mutex mutex_;
    Duration now_{0};
    EventID nextID_ = 1;
    std::map<std::pair<Duration, EventID>, std::function<void()>> events_;
};

}  // namespace fadeloom
