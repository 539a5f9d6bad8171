// SPDX-License-Identifier: MIT
// Watches a process for its exit.
#pragma once

#include <cstdint>
#include <functional>

struct pw_loop;
struct spa_source;

namespace fadeloom {

/// Thread: the loop's, or one that holds its lock.
class ProcessExit {
public:
    /// `ended` is called once, on the loop.
    ProcessExit(pw_loop* loop, std::int32_t pid, std::function<void()> ended);
    ~ProcessExit();
    ProcessExit(const ProcessExit&) = delete;
    ProcessExit& operator=(const ProcessExit&) = delete;

    /// False if there is no such process, or the system cannot watch it.
    [[nodiscard]] bool isWatching() const { return source_ != nullptr; }

private:
    pw_loop* loop_;
    std::function<void()> ended_;
    spa_source* source_ = nullptr;
};

}  // namespace fadeloom
