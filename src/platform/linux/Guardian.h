// SPDX-License-Identifier: MIT
// A lean parent that lets go of the applications when the program stands still.
//
// The sound of every tapped application runs through this program, so a program that is stopped, with Ctrl-Z or by a
// SIGSTOP, would silence them all. Its parent sees the stop, has the audio server drop what the program held, and goes
// on sleeping. Whoever started the program sees the parent: it ends with the program and as the program, passes on what
// it is asked, and stops and goes on together with it.
#pragma once

#include <atomic>
#include <cstdint>

#include <sys/types.h>

namespace fadeloom {

/// Thread: main, `hold` aside.
class Guardian {
public:
    /// Releases what the program holds. Runs in a process of its own, which ends afterwards, in two seconds at most.
    using Release = void (*)(std::uint64_t held, pid_t program);

    /// Splits the process in two and returns in the child, which is the program from then on; the parent ends in here.
    /// Where that cannot be done, or a debugger is watching, the process stays one and nothing is guarded.
    /// `quitSignal`: asks the program to end, any number of times. To be called before any thread is started.
    Guardian(Release release, int quitSignal);
    ~Guardian();
    Guardian(const Guardian&) = delete;
    Guardian& operator=(const Guardian&) = delete;

    /// What is to be released when the program stops; 0 for nothing. Thread: any.
    void hold(std::uint64_t what) noexcept;

private:
    using Held = std::atomic<std::uint64_t>;
    static_assert(Held::is_always_lock_free);

    Held* held_ = nullptr;  // In memory that parent and child share; null without a parent.
};

}  // namespace fadeloom
