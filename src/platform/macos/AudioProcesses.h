// SPDX-License-Identifier: MIT
// The processes that have opened audio, and what each is doing now.
#pragma once

#include "platform/AudioProcess.h"

#include <CoreAudio/CoreAudio.h>

#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// Reads the list of audio processes. Who a process is never changes, so it is read once and remembered; what it does
/// is read every time. Thread: main.
class AudioProcesses {
public:
    /// Every audio process, in the system's order; empty when the list cannot be read. Without `ReadMic::yes` no
    /// process is asked for its microphone and none is said to use it.
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
