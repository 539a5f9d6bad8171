// SPDX-License-Identifier: MIT
// A background queue whose tasks run when the simulated clock reaches their time.
#pragma once

#include "platform/BackgroundQueue.h"
#include "platform/simulated/SimulatedClock.h"

#include <atomic>
#include <cstddef>
#include <memory>

namespace fadeloom {

/// Tasks run by the clock count as off the main thread; `runNow` runs them on the caller's.
class SimulatedBackgroundQueue final : public BackgroundQueue {
public:
    explicit SimulatedBackgroundQueue(SimulatedClock& clock);

    std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) override;

    /// The number of pending tasks.
    [[nodiscard]] std::size_t waitingCount() const;

private:
    class Item;

    SimulatedClock& clock_;
    // Shared with the handles, which may outlive the queue.
    std::shared_ptr<std::atomic<std::size_t>> waiting_ = std::make_shared<std::atomic<std::size_t>>(0);
};

}  // namespace fadeloom
