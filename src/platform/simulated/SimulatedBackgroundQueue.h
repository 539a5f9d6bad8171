// SPDX-License-Identifier: MIT
// A background queue whose work is done when the simulated clock passes its moment.
#pragma once

#include "platform/BackgroundQueue.h"
#include "platform/simulated/SimulatedClock.h"

#include <atomic>
#include <cstddef>
#include <memory>

namespace fadeloom {

/// Work done by the clock counts as done off the main thread; `runNow` does it as the caller.
class SimulatedBackgroundQueue final : public BackgroundQueue {
public:
    explicit SimulatedBackgroundQueue(SimulatedClock& clock);

    std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) override;

    /// How many pieces of work wait for their moment.
    [[nodiscard]] std::size_t waitingCount() const;

private:
    class Item;

    SimulatedClock& clock_;
    // Shared with the pieces of work, which may outlive the queue.
    std::shared_ptr<std::atomic<std::size_t>> waiting_ = std::make_shared<std::atomic<std::size_t>>(0);
};

}  // namespace fadeloom
