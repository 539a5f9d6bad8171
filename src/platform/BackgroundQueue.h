// SPDX-License-Identifier: MIT
// Background tasks, one at a time.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace fadeloom {

/// A serial queue: tasks run one after the other, ordered by due time and then by submission.
class BackgroundQueue {
public:
    /// A task that is pending, running or done. Thread: any.
    class Work {
    public:
        virtual ~Work() = default;
        /// Cancels the task if it has not started.
        virtual void cancel() = 0;
        /// Ensures that the task is done on return: runs it on the calling thread if it has not started, waits for it
        /// if it is running. Does nothing after `cancel`.
        virtual void runNow() = 0;
    };

    virtual ~BackgroundQueue() = default;

    /// Runs `task` after `delay`. The task is kept if the returned handle is dropped. Thread: any.
    virtual std::shared_ptr<Work> submit(std::chrono::milliseconds delay, std::function<void()> task) = 0;
};

}  // namespace fadeloom
