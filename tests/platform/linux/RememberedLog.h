// SPDX-License-Identifier: MIT
// A system log that keeps its messages for the test.
#pragma once

#include "platform/SystemLog.h"

#include <mutex>
#include <string>
#include <vector>

namespace fadeloom {

class RememberedLog final : public SystemLog {
public:
    void write(Level, std::string_view message) override
    {
        const std::scoped_lock guard{mutex_};
        messages_.emplace_back(message);
    }

    [[nodiscard]] std::vector<std::string> messages() const
    {
        const std::scoped_lock guard{mutex_};
        return messages_;
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> messages_;
};

}  // namespace fadeloom
