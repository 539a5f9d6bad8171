// SPDX-License-Identifier: MIT
#include "engine/RecordingLanes.h"

namespace fadeloom {

namespace {

// Enough for `capacity` seconds of the shortest cycles of devices, of 64 frames at about 96 kHz.
constexpr std::size_t cyclesALane = 8192;

}  // namespace

RecordingLanes::Lane::Lane(std::size_t leastSamples)
    : cycles(cyclesALane)
    , samples(leastSamples)
{
}

RecordingLanes::RecordingLanes(double sampleRate)
    : sampleRate_(sampleRate)
{
    for (auto& lane : lanes_)
        lane = std::make_unique<Lane>(capacity * channels * static_cast<std::size_t>(sampleRate));
}

void RecordingLanes::push(const void* writer, double sampleRate, const CycleTime& time,
    std::span<const float> samples) noexcept FADELOOM_NONBLOCKING
{
    if (sampleRate != sampleRate_)
        return;
    Lane* const lane = laneOf(writer);
    if (lane == nullptr || lane->cycles.room() == 0 || !lane->samples.push(samples)) {
        lostFrames_.fetch_add(samples.size() / channels, std::memory_order_relaxed);
        return;
    }
    const Cycle cycle{time, samples.size()};
    (void)lane->cycles.push({&cycle, 1});  // It fits: this is the only producer.
}

void RecordingLanes::release(const void* writer) noexcept
{
    for (const auto& lane : lanes_) {
        const void* present = writer;
        lane->writer.compare_exchange_strong(present, nullptr, std::memory_order_release);
    }
}

void RecordingLanes::drain(const Visitor& visit)
{
    for (const auto& lane : lanes_) {
        Cycle cycle;
        while (lane->cycles.pop({&cycle, 1}) == 1) {
            drained_.resize(cycle.sampleCount);
            lane->samples.pop(drained_);
            visit(cycle.time, drained_);
        }
    }
}

RecordingLanes::Lane* RecordingLanes::laneOf(const void* writer) noexcept FADELOOM_NONBLOCKING
{
    for (const auto& lane : lanes_) {
        if (lane->writer.load(std::memory_order_relaxed) == writer)
            return lane.get();
    }
    for (const auto& lane : lanes_) {
        const void* present = nullptr;
        if (lane->writer.compare_exchange_strong(present, writer, std::memory_order_acquire))
            return lane.get();
    }
    return nullptr;
}

}  // namespace fadeloom
