// SPDX-License-Identifier: MIT
// The main loop, as the event loop of Qt's application object.
#pragma once

#include "platform/MainLoop.h"

#include <memory>

namespace fadeloom {

/// Needs the application object (`QCoreApplication` or one of its kind) before it and for as long as it lives; the
/// thread that makes both is the main thread. Subscriptions may outlive it. Tasks must not throw.
class QtMainLoop final : public MainLoop {
public:
    QtMainLoop();
    /// Drops what is still posted.
    ~QtMainLoop() override;
    QtMainLoop(const QtMainLoop&) = delete;
    QtMainLoop& operator=(const QtMainLoop&) = delete;

    void post(Task task) override;
    Subscription after(std::chrono::milliseconds delay, Task task) override;
    Subscription every(std::chrono::milliseconds interval, Task task) override;
    bool isCurrent() const override;

    /// Runs until `quit`; returns its exit code. Thread: main.
    int run();
    /// Ends `run`, or the next one when none is running, after what was posted before. Thread: any.
    void quit(int exitCode = 0);

private:
    class Hub;

    std::shared_ptr<Hub> hub_;  // Subscriptions look at it weakly.
};

}  // namespace fadeloom
