// SPDX-License-Identifier: MIT
// One IO cycle of a simulated audio system: what the processes play, what the IO procedures make of it, and what each
// device gets in the end.
#pragma once

#include "platform/simulated/SimulatedAudioState.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// What a device got in one cycle.
struct HeardAudio {
    std::uint32_t channels = 0;
    std::uint32_t frames = 0;
    std::vector<float> samples{};  // Interleaved.

    /// `channel` counts from 1. 0 outside of what was heard.
    [[nodiscard]] float at(std::uint32_t frame, std::uint32_t channel) const;
    /// The largest absolute sample of a channel, counted from 1.
    [[nodiscard]] float peak(std::uint32_t channel) const;
    [[nodiscard]] bool isSilent() const;
};

/// By the device's unique id.
using HeardByDevice = std::map<std::string, HeardAudio>;

/// Runs `frames` frames on every device in step, each at its own rate: no resampling between devices. A process that
/// plays is heard on the default output, unless a tap silences it.
[[nodiscard]] HeardByDevice runSimulatedCycle(SimulatedAudioState& state, std::uint32_t frames);

}  // namespace fadeloom
