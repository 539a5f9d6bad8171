// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedSignal.h"

#include <cmath>
#include <numbers>

namespace fadeloom {

SimulatedSignal SimulatedSignal::constant(float left, float right)
{
    return SimulatedSignal{[frame = StereoFrame{left, right}](std::uint64_t, double) { return frame; }};
}

SimulatedSignal SimulatedSignal::sine(double frequency, float amplitude)
{
    return SimulatedSignal{[frequency, amplitude](std::uint64_t index, double sampleRate) {
        const double turns = frequency * static_cast<double>(index) / sampleRate;
        const double phase = 2 * std::numbers::pi * (turns - std::floor(turns));
        const auto sample = static_cast<float>(amplitude * std::sin(phase));
        return StereoFrame{sample, sample};
    }};
}

SimulatedSignal SimulatedSignal::samples(std::vector<StereoFrame> frames)
{
    return SimulatedSignal{[frames = std::move(frames)](std::uint64_t index, double) {
        return index < frames.size() ? frames[static_cast<std::size_t>(index)] : StereoFrame{};
    }};
}

}  // namespace fadeloom
