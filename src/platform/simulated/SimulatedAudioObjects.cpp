// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioObjects.h"

#include <algorithm>

namespace fadeloom {

bool SimulatedAudioDevice::isRunning() const
{
    return std::ranges::any_of(procs, &SimulatedIOProc::isRunning);
}

std::uint32_t SimulatedAudioDevice::outputChannels() const
{
    std::uint32_t channels = 0;
    for (const SimulatedStream& stream : outputs)
        channels += stream.channels;
    return channels;
}

SimulatedIOProc* SimulatedAudioDevice::find(AudioDeviceIOProcID proc)
{
    const auto found = std::ranges::find(procs, proc, &SimulatedIOProc::id);
    return found == procs.end() ? nullptr : &*found;
}

AudioObjectID SimulatedAudioObjects::deviceWithUID(const std::string& uid) const
{
    for (const auto& [id, device] : devices)
        if (device.traits.uid == uid)
            return id;
    return kAudioObjectUnknown;
}

AudioObjectID SimulatedAudioObjects::tapWithUUID(const std::string& uuid) const
{
    for (const auto& [id, tap] : taps)
        if (tap.description.uuid == uuid)
            return id;
    return kAudioObjectUnknown;
}

bool SimulatedAudioObjects::isRead(AudioObjectID tap) const
{
    return std::ranges::any_of(devices, [tap](const auto& entry) {
        return entry.second.isRunning()
            && std::ranges::find(entry.second.inputs, tap, &SimulatedStream::tap)
            != entry.second.inputs.end();
    });
}

bool SimulatedAudioObjects::isSilenced(AudioObjectID process) const
{
    return std::ranges::any_of(taps, [&](const auto& entry) {
        const auto& [id, tap] = entry;
        const auto& tapped = tap.description.processes;
        if (std::ranges::find(tapped, process) == tapped.end())
            return false;
        return tap.description.muteBehavior == TapMuteBehavior::muted
            || (tap.description.muteBehavior == TapMuteBehavior::mutedWhenTapped && isRead(id));
    });
}

bool SimulatedAudioObjects::exists(AudioObjectID object) const
{
    return object == kAudioObjectSystemObject || devices.contains(object) || processes.contains(object)
        || taps.contains(object) || streams.contains(object);
}

}  // namespace fadeloom
