// SPDX-License-Identifier: MIT
#include "hal/OutputDevices.h"

#include "hal/HAL.h"

#include <array>
#include <utility>

namespace fadeloom::OutputDevices {

namespace {

std::optional<OutputDevice> offered(const AudioHardware& hardware, AudioObjectID id)
{
    if (HAL::getArray(hardware, id, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput).empty())
        return std::nullopt;
    auto uid = HAL::string(hardware, id, kAudioDevicePropertyDeviceUID);
    if (!uid || uid->starts_with(ownUIDPrefix))
        return std::nullopt;
    auto name = HAL::string(hardware, id, kAudioObjectPropertyName);
    if (!name)
        return std::nullopt;
    return OutputDevice{.id = id, .uid = std::move(*uid), .name = std::move(*name)};
}

}  // namespace

std::vector<OutputDevice> all(const AudioHardware& hardware)
{
    std::vector<OutputDevice> devices;
    for (const auto id : HAL::getArray(hardware, kAudioObjectSystemObject, kAudioHardwarePropertyDevices,
             kAudioObjectPropertyScopeGlobal)) {
        if (auto device = offered(hardware, id))
            devices.push_back(std::move(*device));
    }
    return devices;
}

std::optional<std::string> defaultOutputUID(const AudioHardware& hardware)
{
    const auto device = HAL::value<AudioObjectID>(
        hardware, kAudioObjectSystemObject, {.selector = kAudioHardwarePropertyDefaultOutputDevice});
    if (!device || *device == kAudioObjectUnknown)
        return std::nullopt;
    return HAL::string(hardware, *device, kAudioDevicePropertyDeviceUID);
}

StereoChannels stereoChannels(const AudioHardware& hardware, AudioObjectID device)
{
    const auto pair = HAL::value<std::array<std::uint32_t, 2>>(hardware, device,
        {.selector = kAudioDevicePropertyPreferredChannelsForStereo,
            .scope = kAudioObjectPropertyScopeOutput});
    if (!pair || (*pair)[0] == 0 || (*pair)[1] == 0)
        return {};
    return {.left = (*pair)[0], .right = (*pair)[1]};
}

}  // namespace fadeloom::OutputDevices
