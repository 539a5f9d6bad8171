// SPDX-License-Identifier: MIT
// Short words for reading audio objects in tests. What cannot be read is a default value; the tests compare.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/AudioStream.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

class AudioReading {
public:
    explicit AudioReading(const AudioHardware& hardware)
        : hardware_(hardware)
    {
    }

    template <typename T>
    [[nodiscard]] T value(AudioObjectID object, AudioObjectPropertySelector selector,
        AudioObjectPropertyScope scope = kAudioObjectPropertyScopeGlobal) const
    {
        T read{};
        const auto size =
            hardware_.readProperty(object, {selector, scope}, std::as_writable_bytes(std::span{&read, 1}));
        return size && *size == sizeof read ? read : T{};
    }

    [[nodiscard]] std::string text(AudioObjectID object, AudioObjectPropertySelector selector) const
    {
        return hardware_.readText(object, {selector}).value_or(std::nullopt).value_or("");
    }

    [[nodiscard]] std::vector<AudioObjectID> list(AudioObjectID object, AudioObjectPropertySelector selector,
        AudioObjectPropertyScope scope = kAudioObjectPropertyScopeGlobal) const
    {
        const auto size = hardware_.propertySize(object, {selector, scope});
        std::vector<AudioObjectID> ids(size.value_or(0) / sizeof(AudioObjectID));
        const auto read =
            hardware_.readProperty(object, {selector, scope}, std::as_writable_bytes(std::span{ids}));
        ids.resize(read.value_or(0) / sizeof(AudioObjectID));
        return ids;
    }

    /// The device with this unique id; `kAudioObjectUnknown` when it is not listed.
    [[nodiscard]] AudioObjectID device(const std::string& uid) const
    {
        for (const AudioObjectID id : list(kAudioObjectSystemObject, kAudioHardwarePropertyDevices))
            if (text(id, kAudioDevicePropertyDeviceUID) == uid)
                return id;
        return kAudioObjectUnknown;
    }

    /// The audio object of a process; `kAudioObjectUnknown` when it is not listed.
    [[nodiscard]] AudioObjectID process(ProcessID pid) const
    {
        for (const AudioObjectID id : list(kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList))
            if (value<ProcessID>(id, kAudioProcessPropertyPID) == pid)
                return id;
        return kAudioObjectUnknown;
    }

    [[nodiscard]] bool isPlaying(AudioObjectID process) const
    {
        return value<std::uint32_t>(process, kAudioProcessPropertyIsRunningOutput) == 1;
    }

    [[nodiscard]] AudioObjectID defaultOutput() const
    {
        return value<AudioObjectID>(kAudioObjectSystemObject, kAudioHardwarePropertyDefaultOutputDevice);
    }

    [[nodiscard]] double rate(AudioObjectID device) const
    {
        return value<double>(device, kAudioDevicePropertyNominalSampleRate);
    }

    [[nodiscard]] std::array<std::uint32_t, 2> stereoPair(AudioObjectID device) const
    {
        return value<std::array<std::uint32_t, 2>>(
            device, kAudioDevicePropertyPreferredChannelsForStereo, kAudioObjectPropertyScopeOutput);
    }

    /// The status of reading a property into `size` bytes.
    [[nodiscard]] AudioStatus statusOfReading(
        AudioObjectID object, const AudioObjectPropertyAddress& address, std::size_t size) const
    {
        std::vector<std::byte> bytes(size);
        const auto read = hardware_.readProperty(object, address, bytes);
        return read ? kAudioHardwareNoError : read.error();
    }

private:
    const AudioHardware& hardware_;
};

}  // namespace fadeloom
