// SPDX-License-Identifier: MIT
// One IO cycle of a simulated audio system: the processes' output, the IO procedures, and the devices' input.
#pragma once

#include "platform/simulated/SimulatedAudioState.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// A device's input in one cycle.
struct HeardAudio {
    std::uint32_t channels = 0;
    std::uint32_t frames = 0;
    std::vector<float> samples{};  // Interleaved.

    /// `channel` counts from 1. 0 for frames outside of the cycle.
    [[nodiscard]] float at(std::uint32_t frame, std::uint32_t channel) const;
    /// The largest absolute sample of a channel, counted from 1.
    [[nodiscard]] float peak(std::uint32_t channel) const;
    [[nodiscard]] bool isSilent() const;
};

/// By the device's unique id.
using HeardByDevice = std::map<std::string, HeardAudio>;

/// Runs `frames` frames on all devices in parallel, each at its own rate: no resampling between devices. A playing
/// process is audible on the default output, unless a tap mutes it.
[[nodiscard]] HeardByDevice runSimulatedCycle(SimulatedAudioState& state, std::uint32_t frames);

}  // namespace fadeloom
