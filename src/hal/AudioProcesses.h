// SPDX-License-Identifier: MIT
// The processes that have opened audio, and what each is doing now.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/Workspace.h"

#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// One audio process at the moment it was asked for.
struct AudioProcess {
    AudioObjectID objectID = kAudioObjectUnknown;
    ProcessID pid = -1;  // −1 when it cannot be read.
    std::string bundleID{};  // Empty when it has none.
    bool isPlaying = false;
    bool isUsingMic = false;

    friend bool operator==(const AudioProcess&, const AudioProcess&) = default;
};

enum class ReadMic : bool { no, yes };

/// Reads the list of audio processes. Who a process is never changes, so it is read once and remembered; what it does
/// is read every time. Thread: main.
class AudioProcesses {
public:
    explicit AudioProcesses(const AudioHardware& hardware);

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

    const AudioHardware& hardware_;
    std::map<AudioObjectID, Identity> identities_;
};

}  // namespace fadeloom
