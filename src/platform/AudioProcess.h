// SPDX-License-Identifier: MIT
// A process that has opened audio.
#pragma once

#include "platform/Workspace.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// Never reused while the program runs; 0 for none.
using AudioProcessID = std::uint32_t;

/// Why something that plays cannot be tapped.
enum class OutOfReach {
    fixed,  // Its stream is tied to its device.
    contested,  // Another program keeps moving its stream.
};

/// One audio process at the moment it was asked for.
struct AudioProcess {
    AudioProcessID id = 0;
    ProcessID pid = -1;  // −1 when it is unknown.
    std::string bundleID{};  // Empty when it has none.
    bool isPlaying = false;
    bool isUsingMic = false;
    /// Unique ids of the devices that its streams would play to without us, ascending. Empty while it has no stream, and
    /// where the system has no such choice.
    std::vector<std::string> ownOutputs{};
    /// Set while a part of what it plays cannot be tapped; absent where every process can be tapped.
    std::optional<OutOfReach> outOfReach{};

    friend bool operator==(const AudioProcess&, const AudioProcess&) = default;
};

/// Whether to find out who uses the microphone, which costs a question for each process on some systems.
enum class ReadMic : bool { no, yes };

}  // namespace fadeloom
