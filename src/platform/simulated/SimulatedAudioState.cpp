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

bool SimulatedAudioState::playsOn(const SimulatedAudioProcess& process, OutputDeviceID device) const
{
    if (process.chosenOutputs.empty())
        return device == defaultOutput;
    return std::ranges::find(process.chosenOutputs, devices.at(device).uid) != process.chosenOutputs.end();
}

bool SimulatedAudioState::isCaptured(AudioProcessID process, OutputDeviceID device) const
{
    return std::ranges::any_of(taps, [&](const auto& entry) {
        const SimulatedTap& tap = entry.second;
        const bool isMeant = tap.scope == TapScope::everyStream || tap.device == device;
        return tap.device != 0 && isMeant && std::ranges::find(tap.processes, process) != tap.processes.end();
    });
}

}  // namespace fadeloom
