// SPDX-License-Identifier: MIT
// The main thread's queue and timers.
#pragma once

#include "base/Subscription.h"

#include <chrono>
#include <functional>

namespace fadeloom {

class MainLoop {
public:
    using Task = std::function<void()>;

    virtual ~MainLoop() = default;

    /// Runs `task` on the main thread in a later iteration of the loop, in the order posted. Thread: any.
    virtual void post(Task task) = 0;
    /// Runs `task` once after `delay`, unless the subscription has ended. Thread: main.
    [[nodiscard]] virtual Subscription after(std::chrono::milliseconds delay, Task task) = 0;
    /// Runs `task` every `interval` until the subscription ends. Thread: main.
    [[nodiscard]] virtual Subscription every(std::chrono::milliseconds interval, Task task) = 0;
    /// Whether the caller is on the main thread. Thread: any.
    [[nodiscard]] virtual bool isCurrent() const = 0;

    /// Aborts the process if the caller is not on the main thread: nothing else guards its state.
    void requireCurrent() const;
};

}  // namespace fadeloom
