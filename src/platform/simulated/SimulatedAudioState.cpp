// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioState.h"

#include <algorithm>

namespace fadeloom {

OutputDeviceID SimulatedAudioState::deviceWithUID(const std::string& uid) const
{
    const auto found =
        std::ranges::find_if(devices, [&](const auto& entry) { return entry.second.uid == uid; });
    return found == devices.end() ? 0 : found->first;
}

bool SimulatedAudioState::isCaptured(AudioProcessID process) const
{
    return std::ranges::any_of(taps, [&](const auto& entry) {
        const SimulatedTap& tap = entry.second;
        return tap.device != 0 && std::ranges::find(tap.processes, process) != tap.processes.end();
    });
}

}  // namespace fadeloom
