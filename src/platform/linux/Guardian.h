// SPDX-License-Identifier: MIT
// A minimal parent process that releases the applications when the program is stopped.
//
// All tapped applications' audio runs through this program, so stopping it, with Ctrl-Z or SIGSTOP, would silence them
// all. Its parent notices the stop, makes the audio server drop the program's objects, and continues sleeping. To its
// own parent it looks like the program: it ends when and how the program ends, forwards signals, and stops and
// continues together with it.
#pragma once

#include <sys/types.h>

#include <atomic>
#include <cstdint>

namespace fadeloom {

/// Thread: main, except for `hold`.
class Guardian {
public:
    /// Releases the program's objects. Runs in a separate process, which exits afterwards, in two seconds at most.
    using Release = void (*)(std::uint64_t held, pid_t program);

    /// Forks the process and returns in the child, which is the program from then on; the parent never returns. If that
    /// is impossible, or under a debugger, the process is not split and nothing is guarded. `quitSignal`: requests the
    /// program's end, any number of times. Call before starting any thread.
    Guardian(Release release, int quitSignal);
    ~Guardian();
    Guardian(const Guardian&) = delete;
    Guardian& operator=(const Guardian&) = delete;

    /// The object to release if the program is stopped; 0 for none. Thread: any.
    void hold(std::uint64_t what) noexcept;

private:
    using Held = std::atomic<std::uint64_t>;
    static_assert(Held::is_always_lock_free);

    Held* held_ = nullptr;  // In memory shared by parent and child; null without a parent.
};

}  // namespace fadeloom
