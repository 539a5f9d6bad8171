// SPDX-License-Identifier: MIT
// Turns the signals that ask a program to end into a call on the main loop.
#pragma once

#include <csignal>
#include <functional>
#include <memory>

namespace fadeloom {

/// SIGINT, SIGTERM, SIGHUP, and `requestSignal` of a parent that passes one of them on. At most one of these objects at a time. Thread: main.
class QuitSignals {
public:
    /// Asks as often as it likes: only a second one of the others ends the process at once.
    static constexpr int requestSignal = SIGUSR1;

    /// `asked` is called on the main loop at the first signal; a second one ends the process at once, in case the
    /// orderly end hangs. Needs a running Qt event loop.
    explicit QuitSignals(std::function<void()> asked);
    /// Gives the signals their former meaning back.
    ~QuitSignals();
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace fadeloom
