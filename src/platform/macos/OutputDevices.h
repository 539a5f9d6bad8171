// SPDX-License-Identifier: MIT
// The devices that sound can be sent to.
#pragma once

#include "platform/OutputDevice.h"

#include <CoreAudio/CoreAudio.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Thread: main. What cannot be read is left out or has a fixed fallback; nothing here reports an error.
namespace fadeloom::OutputDevices {

/// The unique ids of our own aggregate devices begin with this; such a device is never offered.
inline constexpr std::string_view ownUIDPrefix = "com.fadeloom.tap.";

/// The devices to offer, in the system's order: those with an output stream, a unique id and a name.
[[nodiscard]] std::vector<OutputDevice> all();

/// Unique id of the system's default output. Absent when there is none.
[[nodiscard]] std::optional<std::string> defaultOutputUID();

/// The pair that a device prefers for stereo; 1 and 2 when it names none.
[[nodiscard]] StereoChannels stereoChannels(AudioObjectID device);

}  // namespace fadeloom::OutputDevices
