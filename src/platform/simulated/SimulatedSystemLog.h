// SPDX-License-Identifier: MIT
// A system log that stores its messages.
#pragma once

#include "platform/SystemLog.h"

#include <mutex>
#include <string>
#include <vector>

namespace fadeloom {

class SimulatedSystemLog final : public SystemLog {
public:
    struct Line {
        Level level = Level::notice;
        std::string message;

        friend bool operator==(const Line&, const Line&) = default;
    };

    void write(Level level, std::string_view message) override
    {
        const std::scoped_lock guard{mutex_};
        lines_.push_back({level, std::string{message}});
    }

    /// All messages so far. Thread: any.
    [[nodiscard]] std::vector<Line> lines() const
    {
        const std::scoped_lock guard{mutex_};
        return lines_;
    }

private:
    mutable std::mutex mutex_;
    std::vector<Line> lines_;
};

}  // namespace fadeloom
