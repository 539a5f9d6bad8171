// SPDX-License-Identifier: MIT
// Work off the main thread, one piece at a time.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace fadeloom {

/// A serial queue: pieces of work that are due run one after the other, those due at the same time in the order given.
class BackgroundQueue {
public:
    /// A piece of work that waits for its time, runs, or has run. Thread: any.
    class Work {
    public:
        virtual ~Work() = default;
        /// Takes the work back if it has not begun.
        virtual void cancel() = 0;
        /// Sees to it that the work is done when this returns: runs it here and now if it has not begun, waits for
        /// it if it is running. Does nothing after `cancel`.
        virtual void runNow() = 0;
    };

    virtual ~BackgroundQueue() = default;

    /// Runs `task` after `delay`. The work goes on when the returned handle is dropped. Thread: any.
    virtual std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) = 0;
};

}  // namespace fadeloom
