// SPDX-License-Identifier: MIT
// Date and time of day.
#pragma once

#include <chrono>

namespace fadeloom {

/// Local date and time, without a time zone.
using LocalTime = std::chrono::local_seconds;

/// Thread: any.
class WallClock {
public:
    virtual ~WallClock() = default;

    [[nodiscard]] virtual std::chrono::system_clock::time_point now() const = 0;
    /// The same moment in the user's time zone, rounded down to a second.
    [[nodiscard]] virtual LocalTime localTime(std::chrono::system_clock::time_point moment) const = 0;
};

}  // namespace fadeloom
