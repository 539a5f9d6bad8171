// SPDX-License-Identifier: MIT
#include "engine/CycleClocks.h"

#include <algorithm>
#include <cmath>
#include <ranges>

namespace fadeloom {

namespace {

// The deviation of a poor crystal; a smaller share of lost time is no sign of lost frames.
constexpr double highestDrift = 200e-6;

// Cycles that arrive late belong to one of the last runs.
constexpr std::size_t runsKept = 16;

HostTime duration(std::int64_t frames, double rate)
{
    return std::chrono::duration_cast<HostTime>(
        std::chrono::duration<double>(static_cast<double>(frames) / rate));
}

HostTime withoutDrift(HostTime lag, HostTime elapsed)
{
    const auto drift = std::chrono::duration_cast<HostTime>(std::chrono::abs(elapsed) * highestDrift);
    return lag - std::clamp(lag, -drift, drift);
}

}  // namespace

std::int64_t frameCount(HostTime time, double rate)
{
    return std::llround(std::chrono::duration<double>(time).count() * rate);
}

std::int64_t CycleClocks::frameAt(const CycleTime& time, double rate, std::int64_t cycleLength)
{
    auto& line = lines_[{time.clock, rate}];
    const auto newestFirst = line | std::views::reverse;
    const auto run =
        std::ranges::find_if(newestFirst, [&](const Run& each) { return each.continues(time, rate); });
    if (run == newestFirst.end()) {
        std::int64_t frame = 0;
        if (!line.empty()) {
            const auto& before = line.back();
            // Cycles never overlap earlier ones.
            frame = std::max(before.frameAt(time.host + before.lag, rate), before.end);
        }
        if (line.size() == runsKept)
            line.erase(line.begin());
        line.push_back({.last = time, .frame = frame, .end = frame + cycleLength});
        return frame;
    }
    const auto counted = time.frame - run->last.frame;
    const auto frame = run->frame + counted;
    if (counted > 0) {
        const auto elapsed = time.host - run->last.host;
        const auto lag = withoutDrift(run->lag + elapsed - duration(counted, rate), elapsed);
        *run = {.last = time, .frame = frame, .end = frame + cycleLength, .lag = lag};
    }
    return frame;
}

std::int64_t CycleClocks::frameAt(HostTime moment, std::uint32_t clock, double rate) const
{
    return lines_.at({clock, rate}).back().frameAt(moment, rate);
}

bool CycleClocks::Run::continues(const CycleTime& time, double rate) const
{
    const auto counted = duration(time.frame - last.frame, rate);
    return std::chrono::abs(lag + (time.host - last.host) - counted) <= tolerance;
}

std::int64_t CycleClocks::Run::frameAt(HostTime moment, double rate) const
{
    return frame + frameCount(moment - last.host, rate);
}

}  // namespace fadeloom
