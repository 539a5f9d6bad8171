// SPDX-License-Identifier: MIT
// The clock and the time zone of the system.
#pragma once

#include "platform/WallClock.h"

namespace fadeloom {

/// The zone is the one that "TZ" names, else the system's; a change of either counts at once.
class SystemClock final : public WallClock {
public:
    std::chrono::system_clock::time_point now() const override { return std::chrono::system_clock::now(); }
    LocalTime localTime(std::chrono::system_clock::time_point moment) const override;
};

}  // namespace fadeloom
