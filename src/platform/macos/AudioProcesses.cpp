// SPDX-License-Identifier: MIT
#include "platform/macos/AudioProcesses.h"

#include "platform/macos/HAL.h"

#include <cstdint>
#include <set>

namespace fadeloom {

namespace {

bool isOn(AudioObjectID process, AudioObjectPropertySelector selector)
{
    return HAL::value<std::uint32_t>(process, HAL::address(selector)).value_or(0) != 0;
}

}  // namespace

std::vector<AudioProcess> AudioProcesses::all(ReadMic readMic)
{
    const auto ids = HAL::getArray(
        kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList, kAudioObjectPropertyScopeGlobal);

    std::vector<AudioProcess> processes;
    processes.reserve(ids.size());
    for (const auto id : ids) {
        const auto& identity = identityOf(id);
        processes.push_back({
            .id = id,
            .pid = identity.pid,
            .bundleID = identity.bundleID,
            .isPlaying = isOn(id, kAudioProcessPropertyIsRunningOutput),
            .isUsingMic = readMic == ReadMic::yes && isOn(id, kAudioProcessPropertyIsRunningInput),
        });
    }
    // Pruned only when it is larger than the list: most polls find the processes of the previous one.
    if (identities_.size() > ids.size())
        forgetAllBut(ids);
    return processes;
}

const AudioProcesses::Identity& AudioProcesses::identityOf(AudioObjectID process)
{
    const auto [entry, isNew] = identities_.try_emplace(process);
    if (isNew) {
        entry->second = {
            .pid = HAL::value<ProcessID>(process, HAL::address(kAudioProcessPropertyPID)).value_or(-1),
            .bundleID = HAL::string(process, kAudioProcessPropertyBundleID).value_or(""),
        };
    }
    return entry->second;
}

void AudioProcesses::forgetAllBut(const std::vector<AudioObjectID>& processes)
{
    const std::set<AudioObjectID> current(processes.begin(), processes.end());
    std::erase_if(identities_, [&](const auto& entry) { return !current.contains(entry.first); });
}

}  // namespace fadeloom
