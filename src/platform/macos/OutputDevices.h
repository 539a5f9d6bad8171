// SPDX-License-Identifier: MIT
// The output devices.
#pragma once

#include "platform/OutputDevice.h"

#include <CoreAudio/CoreAudio.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Thread: main. What cannot be read is omitted or has a fixed fallback; nothing here reports an error.
namespace fadeloom::OutputDevices {

/// The prefix of our own aggregate devices' unique ids; such a device is never listed.
inline constexpr std::string_view ownUIDPrefix = "com.fadeloom.tap.";

/// The selectable devices, in the system's order: those with an output stream, a unique id and a name.
[[nodiscard]] std::vector<OutputDevice> all();

/// Unique id of the system's default output. nullopt if there is none.
[[nodiscard]] std::optional<std::string> defaultOutputUID();

/// A device's preferred stereo channels; 1 and 2 if it has none.
[[nodiscard]] StereoChannels stereoChannels(AudioObjectID device);

}  // namespace fadeloom::OutputDevices
