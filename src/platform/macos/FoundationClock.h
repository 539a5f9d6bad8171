// SPDX-License-Identifier: MIT
// The machine's clock, and its time zone.
#pragma once

#include "platform/WallClock.h"

namespace fadeloom {

class FoundationClock final : public WallClock {
public:
    std::chrono::system_clock::time_point now() const override { return std::chrono::system_clock::now(); }
    LocalTime localTime(std::chrono::system_clock::time_point moment) const override;
};

}  // namespace fadeloom
