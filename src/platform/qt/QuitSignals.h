// SPDX-License-Identifier: MIT
// Turns signals that request the program's end into a call on the main loop.
#pragma once

#include <csignal>
#include <functional>
#include <memory>

namespace fadeloom {

/// SIGINT, SIGTERM, SIGHUP, and `requestSignal` from a parent that forwards one of them. At most one instance at a
/// time. Thread: main.
class QuitSignals {
public:
    /// May be sent repeatedly: only a second one of the others ends the process immediately.
    static constexpr int requestSignal = SIGUSR1;

    /// `asked` is called on the main loop at the first signal; a second one ends the process immediately, in case the
    /// shutdown hangs. Needs a running Qt event loop.
    explicit QuitSignals(std::function<void()> asked);
    /// Restores the previous signal actions.
    ~QuitSignals();
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace fadeloom
