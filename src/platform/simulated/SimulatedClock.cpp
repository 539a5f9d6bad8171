// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedClock.h"

#include <algorithm>

namespace fadeloom {

SimulatedClock::Duration SimulatedClock::now() const
{
    const std::scoped_lock guard{mutex_};
    return now_;
}

SimulatedClock::EventID SimulatedClock::schedule(Duration delay, std::function<void()> event)
{
    const std::scoped_lock guard{mutex_};
    const EventID id = nextID_++;
    events_.emplace(std::pair{now_ + std::max(delay, Duration{0}), id}, std::move(event));
    return id;
}

void SimulatedClock::cancel(EventID id)
{
    std::function<void()> released;  // Destroyed after the lock is released.
    const std::scoped_lock guard{mutex_};
    const auto found = std::find_if(
        events_.begin(), events_.end(), [id](const auto& entry) { return entry.first.second == id; });
    if (found == events_.end())
        return;
    released = std::move(found->second);
    events_.erase(found);
}

bool SimulatedClock::runNextBy(Duration end)
{
    std::function<void()> event;
    {
        const std::scoped_lock guard{mutex_};
        const auto next = events_.begin();
        if (next == events_.end() || next->first.first > end)
            return false;
        now_ = std::max(now_, next->first.first);
        event = std::move(next->second);
        events_.erase(next);
    }
    event();
    return true;
}

void SimulatedClock::moveTo(Duration moment)
{
    const std::scoped_lock guard{mutex_};
    now_ = std::max(now_, moment);
}

}  // namespace fadeloom
