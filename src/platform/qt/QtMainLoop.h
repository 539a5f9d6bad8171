// SPDX-License-Identifier: MIT
// The main loop, implemented by the event loop of Qt's application object.
#pragma once

#include "platform/MainLoop.h"

#include <memory>

namespace fadeloom {

/// Needs the application object (`QCoreApplication` or a subclass) for its whole lifetime; the thread that creates both
/// is the main thread. Subscriptions may outlive it. Tasks must not throw.
class QtMainLoop final : public MainLoop {
public:
    QtMainLoop();
    /// Drops posted tasks.
    ~QtMainLoop() override;
    QtMainLoop(const QtMainLoop&) = delete;
    QtMainLoop& operator=(const QtMainLoop&) = delete;

    void post(Task task) override;
    Subscription after(std::chrono::milliseconds delay, Task task) override;
    Subscription every(std::chrono::milliseconds interval, Task task) override;
    bool isCurrent() const override;

    /// Runs until `quit`; returns its exit code. Thread: main.
    int run();
    /// Ends `run`, or the next call if it is not running, after earlier posted tasks. Thread: any.
    void quit(int exitCode = 0);

private:
    class Hub;

    std::shared_ptr<Hub> hub_;  // Subscriptions hold a weak reference.
};

}  // namespace fadeloom
