// SPDX-License-Identifier: MIT
// A background queue on a thread of its own.
#pragma once

#include "platform/BackgroundQueue.h"

#include <memory>
#include <thread>

namespace fadeloom {

/// Pieces of work never run at the same time, not even when one of them is run by `runNow`. They must not throw.
class UtilityQueue final : public BackgroundQueue {
public:
    UtilityQueue();
    /// Does what is due by now, then drops the rest.
    ~UtilityQueue() override;
    UtilityQueue(const UtilityQueue&) = delete;
    UtilityQueue& operator=(const UtilityQueue&) = delete;

    std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) override;

private:
    class Schedule;
    class Item;

    std::shared_ptr<Schedule> schedule_;  // Shared with the pieces of work, which may outlive the queue.
    std::jthread thread_;
};

}  // namespace fadeloom
