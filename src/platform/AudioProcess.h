// SPDX-License-Identifier: MIT
// A process that uses audio.
#pragma once

#include "platform/Workspace.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// Never reused while the program runs; 0 for none.
using AudioProcessID = std::uint32_t;

/// Why some playback cannot be tapped.
enum class OutOfReach {
    fixed,  // Its stream is pinned to its device.
    contested,  // Another program keeps moving its stream.
};

/// A snapshot of one audio process.
struct AudioProcess {
    AudioProcessID id = 0;
    ProcessID pid = -1;  // −1 if unknown.
    std::string bundleID{};  // Empty if it has none.
    bool isPlaying = false;
    bool isUsingMic = false;
    /// Unique ids of the devices that its streams would play to without us, sorted. Empty while it has no stream, and
    /// on systems without per-stream devices.
    std::vector<std::string> ownOutputs{};
    /// Set while part of its playback cannot be tapped; always nullopt on systems where every process can be tapped.
    std::optional<OutOfReach> outOfReach{};

    friend bool operator==(const AudioProcess&, const AudioProcess&) = default;
};

/// Whether to query microphone use, which on some systems costs one query per process.
enum class ReadMic : bool { no, yes };

}  // namespace fadeloom
