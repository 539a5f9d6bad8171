// SPDX-License-Identifier: MIT
// A main loop for tests that knows only which thread is its own: listeners come by the main queue.
#pragma once

#include "platform/MainLoop.h"

#include <stdexcept>
#include <thread>

namespace fadeloom {

class QueueMainLoop final : public MainLoop {
public:
    void post(Task) override { throw std::logic_error("nothing is posted here"); }
    Subscription after(std::chrono::milliseconds, Task) override { throw std::logic_error("no timers here"); }
    Subscription every(std::chrono::milliseconds, Task) override { throw std::logic_error("no timers here"); }
    bool isCurrent() const override { return std::this_thread::get_id() == thread_; }

private:
    const std::thread::id thread_ = std::this_thread::get_id();
};

}  // namespace fadeloom
