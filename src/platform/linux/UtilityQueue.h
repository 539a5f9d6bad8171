// SPDX-License-Identifier: MIT
// A background queue with its own thread.
#pragma once

#include "platform/BackgroundQueue.h"

#include <memory>
#include <thread>

namespace fadeloom {

/// Tasks never run concurrently, not even with `runNow`. They must not throw.
class UtilityQueue final : public BackgroundQueue {
public:
    UtilityQueue();
    /// Runs what is due, then drops the rest.
    ~UtilityQueue() override;
    UtilityQueue(const UtilityQueue&) = delete;
    UtilityQueue& operator=(const UtilityQueue&) = delete;

    std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) override;

private:
    class Schedule;
    class Item;

    std::shared_ptr<Schedule> schedule_;  // Shared with the handles, which may outlive the queue.
    std::jthread thread_;
};

}  // namespace fadeloom
