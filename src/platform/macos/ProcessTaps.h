// SPDX-License-Identifier: MIT
// Process taps, whose descriptions are Objective-C objects.
#pragma once

#include "platform/AudioHardware.h"

/// Each call makes a description of its own; the audio system keeps a copy. Thread: main.
namespace fadeloom::ProcessTaps {

[[nodiscard]] AudioResult<AudioObjectID> create(const TapDescription& description);
/// Replaces the description of a tap.
[[nodiscard]] AudioStatus describe(AudioObjectID tap, const TapDescription& description);
AudioStatus destroy(AudioObjectID tap);

}  // namespace fadeloom::ProcessTaps
