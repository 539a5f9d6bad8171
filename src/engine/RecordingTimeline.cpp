// SPDX-License-Identifier: MIT
#include "engine/RecordingTimeline.h"

#include "engine/RecordingLanes.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <utility>

namespace fadeloom {

RecordingTimeline::RecordingTimeline(CycleClocks& clocks, double sampleRate, HostTime start)
    : clocks_(clocks)
    , sampleRate_(sampleRate)
    , start_(start)
{
}

void RecordingTimeline::add(const CycleTime& time, std::span<const float> samples)
{
    const auto length = static_cast<std::int64_t>(samples.size() / RecordingLanes::channels);
    const auto frameOnLine = clocks_.frameAt(time, sampleRate_, length);
    const auto place = frameOnLine + sourceOf(time, frameOnLine, length).offset;
    latestClock_ = time.clock;

    const auto late = std::clamp<std::int64_t>(taken_ - place, 0, length);
    const auto sound = samples.subspan(RecordingLanes::channels * static_cast<std::size_t>(late));
    if (sound.empty())
        return;
    const auto begin = RecordingLanes::channels * static_cast<std::size_t>(place + late - taken_);
    waiting_.resize(std::max(waiting_.size(), begin + sound.size()));
    const auto into = std::span(waiting_).subspan(begin, sound.size());
    std::ranges::transform(into, sound, into.begin(), std::plus{});
}

std::vector<float> RecordingTimeline::takeUntil(HostTime moment)
{
    return take(placeOf(moment));
}

std::vector<float> RecordingTimeline::takeRest(HostTime end)
{
    auto longest = frameCount(CycleClocks::tolerance, sampleRate_);
    if (latestClock_)
        longest += sources_.at(*latestClock_).cycleLength;
    const auto soundEnd = taken_ + static_cast<std::int64_t>(waiting_.size() / RecordingLanes::channels);
    const auto wanted = placeOf(end);
    return take(wanted - soundEnd > longest ? wanted : soundEnd);
}

std::int64_t RecordingTimeline::placeOf(HostTime moment) const
{
    if (!latestClock_)
        return frameCount(moment - start_, sampleRate_);
    return clocks_.frameAt(moment, *latestClock_, sampleRate_) + sources_.at(*latestClock_).offset;
}

RecordingTimeline::Source& RecordingTimeline::sourceOf(
    const CycleTime& time, std::int64_t frameOnLine, std::int64_t cycleLength)
{
    auto known = sources_.find(time.clock);
    if (known == sources_.end()) {
        auto place = placeOf(time.host);
        // The start lies in this cycle, or so close to it that the recording begins with it.
        const auto nearby = frameCount(CycleClocks::tolerance, sampleRate_) + cycleLength;
        if (!latestClock_ && taken_ == 0 && std::abs(place) <= nearby)
            place = 0;
        known = sources_.emplace(time.clock, Source{.offset = place - frameOnLine}).first;
    }
    known->second.cycleLength = cycleLength;
    return known->second;
}

std::vector<float> RecordingTimeline::take(std::int64_t end)
{
    const auto count =
        RecordingLanes::channels * static_cast<std::size_t>(std::max<std::int64_t>(end - taken_, 0));
    if (waiting_.size() < count)
        waiting_.resize(count);
    std::vector<float> taken(waiting_.begin(), waiting_.begin() + static_cast<std::ptrdiff_t>(count));
    waiting_.erase(waiting_.begin(), waiting_.begin() + static_cast<std::ptrdiff_t>(count));
    taken_ += static_cast<std::int64_t>(count / RecordingLanes::channels);
    return taken;
}

}  // namespace fadeloom
