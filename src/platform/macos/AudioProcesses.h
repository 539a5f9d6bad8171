// SPDX-License-Identifier: MIT
// The processes that use audio, and their current state.
#pragma once

#include "platform/AudioProcess.h"

#include <CoreAudio/CoreAudio.h>

#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// Reads the list of audio processes. A process's identity never changes, so it is cached; its state is read every
/// time. Thread: main.
class AudioProcesses {
public:
    /// All audio processes, in the system's order; empty if the list cannot be read. Without `ReadMic::yes` microphone
    /// use is neither queried nor reported.
    [[nodiscard]] std::vector<AudioProcess> all(ReadMic readMic);

private:
    struct Identity {
        ProcessID pid = -1;
        std::string bundleID;
    };

    const Identity& identityOf(AudioObjectID process);
    void forgetAllBut(const std::vector<AudioObjectID>& processes);

    std::map<AudioObjectID, Identity> identities_;
};

}  // namespace fadeloom
