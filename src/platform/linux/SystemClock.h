// SPDX-License-Identifier: MIT
// The system's clock and time zone.
#pragma once

#include "platform/WallClock.h"

namespace fadeloom {

/// The zone is that of "TZ", else the system's; changes of either take effect immediately.
class SystemClock final : public WallClock {
public:
    std::chrono::system_clock::time_point now() const override { return std::chrono::system_clock::now(); }
    LocalTime localTime(std::chrono::system_clock::time_point moment) const override;
};

}  // namespace fadeloom
