// SPDX-License-Identifier: MIT
// The parent's part of a guarded program: it sleeps until a signal comes.
#pragma once

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <optional>

#include <sys/types.h>

namespace fadeloom {

/// Memory of its own is all that it needs: it allocates nothing and has no thread. The signals of `signals()` are
/// blocked while it is at work.
class GuardianWatch {
public:
    using Release = void (*)(std::uint64_t held, pid_t program);

    GuardianWatch(
        pid_t program, int quitSignal, Release itsRelease, const std::atomic<std::uint64_t>& held) noexcept;

    /// What it waits for.
    [[nodiscard]] static sigset_t signals() noexcept;
    /// Ends the process as the program ended.
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
    int askedSignal_ = 0;  // The first that asked for the end.
    std::optional<std::chrono::steady_clock::time_point> askedAt_;
};

}  // namespace fadeloom
