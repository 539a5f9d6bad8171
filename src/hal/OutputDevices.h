// SPDX-License-Identifier: MIT
// The devices that sound can be sent to.
#pragma once

#include "platform/AudioHardware.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// One output device as it is connected now. `uid` survives unplugging, `id` does not.
struct OutputDevice {
    AudioObjectID id = kAudioObjectUnknown;
    std::string uid{};
    std::string name{};

    friend bool operator==(const OutputDevice&, const OutputDevice&) = default;
};

/// Which channels of a device carry left and right, numbered from 1. A mono device names one channel twice.
struct StereoChannels {
    std::uint32_t left = 1;
    std::uint32_t right = 2;

    friend bool operator==(const StereoChannels&, const StereoChannels&) = default;
};

/// Thread: main. What cannot be read is left out or has a fixed fallback; nothing here reports an error.
namespace OutputDevices {

/// The unique ids of our own aggregate devices begin with this; such a device is never offered.
inline constexpr std::string_view ownUIDPrefix = "com.fadeloom.tap.";

/// The devices to offer, in the system's order: those with an output stream, a unique id and a name.
[[nodiscard]] std::vector<OutputDevice> all(const AudioHardware& hardware);

/// Unique id of the system's default output. Absent when there is none.
[[nodiscard]] std::optional<std::string> defaultOutputUID(const AudioHardware& hardware);

/// The pair that a device prefers for stereo; 1 and 2 when it names none.
[[nodiscard]] StereoChannels stereoChannels(const AudioHardware& hardware, AudioObjectID device);

}  // namespace OutputDevices

}  // namespace fadeloom
