// SPDX-License-Identifier: MIT
// A main loop on the doubles' main queue: a test runs its iterations and advances its time.
#pragma once

#include "platform/MainLoop.h"

#include <dispatch/dispatch.h>

#include <memory>
#include <thread>

namespace fadeloom {

class QueueMainLoop final : public MainLoop {
public:
    void post(Task task) override
    {
        dispatch_async(dispatch_get_main_queue(), ^{ task(); });
    }
    Subscription after(std::chrono::milliseconds delay, Task task) override
    {
        return begin(delay, std::move(task), Repeats::once);
    }
    Subscription every(std::chrono::milliseconds interval, Task task) override
    {
        return begin(interval, std::move(task), Repeats::always);
    }
    bool isCurrent() const override { return std::this_thread::get_id() == thread_; }

private:
    enum class Repeats { once, always };

    struct Timer {
        std::chrono::milliseconds delay;
        Task task;
        Repeats repeats;
        bool isOver = false;
    };

    static Subscription begin(std::chrono::milliseconds delay, Task task, Repeats repeats)
    {
        auto timer = std::make_shared<Timer>(delay, std::move(task), repeats);
        wait(timer);
        return Subscription([timer] { timer->isOver = true; });
    }
    static void wait(const std::shared_ptr<Timer>& waiting)
    {
        const auto timer = waiting;
        const auto later = std::chrono::nanoseconds(timer->delay).count();
        dispatch_after(dispatch_time(DISPATCH_TIME_NOW, later), dispatch_get_main_queue(), ^{
            if (timer->isOver)
                return;
            if (timer->repeats == Repeats::always)
                wait(timer);
            timer->task();
        });
    }

    const std::thread::id thread_ = std::this_thread::get_id();
};

}  // namespace fadeloom
