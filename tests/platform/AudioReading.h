// SPDX-License-Identifier: MIT
// Convenience queries to an audio system.
#pragma once

#include "platform/AudioSystem.h"

#include <algorithm>
#include <optional>
#include <string>

namespace fadeloom {

class AudioReading {
public:
    explicit AudioReading(AudioSystem& audio)
        : audio_(audio)
    {
    }

    /// The device with this unique id; one without an id when it is not listed.
    [[nodiscard]] OutputDevice device(const std::string& uid) const
    {
        const auto devices = audio_.outputDevices();
        const auto found = std::ranges::find(devices, uid, &OutputDevice::uid);
        return found == devices.end() ? OutputDevice{} : *found;
    }
    [[nodiscard]] bool hasDevice(const std::string& uid) const { return device(uid).id != 0; }

    /// The audio process with this pid; one without an id when it is not listed.
    [[nodiscard]] AudioProcess process(ProcessID pid) const
    {
        const auto processes = audio_.processes(ReadMic::yes);
        const auto found = std::ranges::find(processes, pid, &AudioProcess::pid);
        return found == processes.end() ? AudioProcess{} : *found;
    }
    [[nodiscard]] bool hasProcess(ProcessID pid) const { return process(pid).id != 0; }
    [[nodiscard]] bool isPlaying(ProcessID pid) const { return process(pid).isPlaying; }

private:
    AudioSystem& audio_;
};

}  // namespace fadeloom
