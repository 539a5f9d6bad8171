// SPDX-License-Identifier: MIT
// The date of a simulation, which begins on 2 January 2030 at noon, in UTC.
#pragma once

#include "platform/WallClock.h"
#include "platform/simulated/SimulatedClock.h"

namespace fadeloom {

class SimulatedWallClock final : public WallClock {
public:
    explicit SimulatedWallClock(const SimulatedClock& clock)
        : clock_(clock)
    {
    }

    std::chrono::system_clock::time_point now() const override
    {
        return beginning_ + std::chrono::duration_cast<std::chrono::system_clock::duration>(clock_.now());
    }
    LocalTime localTime(std::chrono::system_clock::time_point moment) const override
    {
        return LocalTime(std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch());
    }

    /// Sets the date and time of day, independently of the simulated clock.
    void set(std::chrono::system_clock::time_point moment) { beginning_ += moment - now(); }

private:
    const SimulatedClock& clock_;
    std::chrono::system_clock::time_point beginning_ =
        std::chrono::sys_days{std::chrono::year{2030} / std::chrono::January / 2} + std::chrono::hours{12};
};

}  // namespace fadeloom
