// SPDX-License-Identifier: MIT
#include "platform/macos/OutputDevices.h"

#include "platform/macos/HAL.h"

#include <array>
#include <utility>

namespace fadeloom::OutputDevices {

namespace {

std::optional<OutputDevice> offered(AudioObjectID id)
{
    if (HAL::getArray(id, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput).empty())
        return std::nullopt;
    auto uid = HAL::string(id, kAudioDevicePropertyDeviceUID);
    if (!uid || uid->starts_with(ownUIDPrefix))
        return std::nullopt;
    auto name = HAL::string(id, kAudioObjectPropertyName);
    if (!name)
        return std::nullopt;
    return OutputDevice{.id = id, .uid = std::move(*uid), .name = std::move(*name)};
}

}  // namespace

std::vector<OutputDevice> all()
{
    std::vector<OutputDevice> devices;
    for (const auto id : HAL::getArray(
             kAudioObjectSystemObject, kAudioHardwarePropertyDevices, kAudioObjectPropertyScopeGlobal)) {
        if (auto device = offered(id))
            devices.push_back(std::move(*device));
    }
    return devices;
}

std::optional<std::string> defaultOutputUID()
{
    const auto device = HAL::value<AudioObjectID>(
        kAudioObjectSystemObject, HAL::address(kAudioHardwarePropertyDefaultOutputDevice));
    if (!device || *device == kAudioObjectUnknown)
        return std::nullopt;
    return HAL::string(*device, kAudioDevicePropertyDeviceUID);
}

StereoChannels stereoChannels(AudioObjectID device)
{
    const auto pair = HAL::value<std::array<std::uint32_t, 2>>(device,
        HAL::address(kAudioDevicePropertyPreferredChannelsForStereo, kAudioObjectPropertyScopeOutput));
    if (!pair || (*pair)[0] == 0 || (*pair)[1] == 0)
        return {};
    return {.left = (*pair)[0], .right = (*pair)[1]};
}

}  // namespace fadeloom::OutputDevices
