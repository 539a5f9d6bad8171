// SPDX-License-Identifier: MIT
// The parent of a guarded program: sleeps until a signal arrives.
#pragma once

#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <optional>

namespace fadeloom {

/// Needs nothing but its own memory: it allocates nothing and has no threads. The signals of `signals()` are blocked
/// while it runs.
class GuardianWatch {
public:
    using Release = void (*)(std::uint64_t held, pid_t program);

    GuardianWatch(
        pid_t program, int quitSignal, Release itsRelease, const std::atomic<std::uint64_t>& held) noexcept;

    /// The signals that it waits for.
    [[nodiscard]] static sigset_t signals() noexcept;
    /// Ends the process in the same way as the program.
    [[noreturn]] void run() noexcept;

private:
    void programChanged() noexcept;
    void release() noexcept;
    void stopWithProgram() noexcept;
    void askToQuit(int signal) noexcept;
    [[noreturn]] void endAs(int status) noexcept;

    const pid_t program_;
    const int quitSignal_;
    const Release release_;
    const std::atomic<std::uint64_t>& held_;
    bool isProgramStopped_ = false;
    bool isStopWanted_ = false;  // We are to stop with the program.
    int askedSignal_ = 0;  // The first one that requested the end.
    std::optional<std::chrono::steady_clock::time_point> askedAt_;
};

}  // namespace fadeloom
