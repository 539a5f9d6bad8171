// SPDX-License-Identifier: MIT
// Creates process taps, whose descriptions are Objective-C objects.
#pragma once

#include "platform/AudioProcess.h"

#include <CoreAudio/CoreAudio.h>

#include <expected>
#include <string>
#include <vector>

namespace fadeloom {

/// A private stereo mixdown of `processes`, which mutes them elsewhere while it is read.
struct ProcessTapDescription {
    std::vector<AudioProcessID> processes;
    std::string uuid;
    std::string name;
};

/// Each call creates a new description object; the audio system keeps a copy. Thread: main.
namespace ProcessTaps {

[[nodiscard]] std::expected<AudioObjectID, OSStatus> create(const ProcessTapDescription& description);
/// Replaces the description of a tap. A tap that is being read changes without interruption.
[[nodiscard]] OSStatus describe(AudioObjectID tap, const ProcessTapDescription& description);
OSStatus destroy(AudioObjectID tap);

}  // namespace ProcessTaps

}  // namespace fadeloom
