// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedBackgroundQueue.h"

#include "platform/simulated/SimulatedMainLoop.h"

#include <utility>

namespace fadeloom {

/// Nothing is concurrent in the simulation, so a running task never has to be waited for.
class SimulatedBackgroundQueue::Item final : public Work {
public:
    Item(std::function<void()> task, std::shared_ptr<std::atomic<std::size_t>> waiting)
        : task_(std::move(task))
        , waiting_(std::move(waiting))
    {
        ++*waiting_;
    }

    void cancel() override
    {
        if (takes())
            task_ = nullptr;
    }

    void runNow() override
    {
        if (!takes())
            return;
        const auto task = std::exchange(task_, nullptr);
        task();
    }

private:
    /// True for the caller that gets to run or drop the task.
    bool takes()
    {
        if (isTaken_.exchange(true))
            return false;
        --*waiting_;
        return true;
    }

    std::function<void()> task_;
    std::atomic<bool> isTaken_ = false;
    std::shared_ptr<std::atomic<std::size_t>> waiting_;
};

SimulatedBackgroundQueue::SimulatedBackgroundQueue(SimulatedClock& clock)
    : clock_(clock)
{
}

std::shared_ptr<BackgroundQueue::Work> SimulatedBackgroundQueue::submit(
    std::chrono::milliseconds delay, std::function<void()> task)
{
    auto item = std::make_shared<Item>(std::move(task), waiting_);
    clock_.schedule(delay, [item] {
        const SimulatedMainLoop::OtherThread queueThread;
        item->runNow();
    });
    return item;
}

std::size_t SimulatedBackgroundQueue::waitingCount() const
{
    return *waiting_;
}

}  // namespace fadeloom
