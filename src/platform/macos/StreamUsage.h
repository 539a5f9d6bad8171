// SPDX-License-Identifier: MIT
// Which streams of a device an IO procedure takes part in.
//
// A device delivers every stream it has unless it is told otherwise: an output device with a microphone would have it
// run, and light its indicator, for a procedure that never looks at it.
#pragma once

#include <CoreAudio/CoreAudio.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace fadeloom {

/// A copy of the platform's record for one procedure and one direction. Thread: main.
class StreamUsage {
public:
    /// Absent when the record cannot be read or is too short for what it says.
    [[nodiscard]] static std::optional<StreamUsage> read(
        AudioObjectID device, AudioDeviceIOProcID proc, AudioObjectPropertyScope scope);

    [[nodiscard]] std::size_t streamCount() const;
    /// `stream`: from 0, in the device's order, below `streamCount`.
    [[nodiscard]] bool isOn(std::size_t stream) const;
    void switchOff(std::size_t stream);

    /// Makes this the usage of the procedure it was read for; returns the platform's status.
    [[nodiscard]] OSStatus write(AudioObjectID device, AudioObjectPropertyScope scope) const;

private:
    explicit StreamUsage(std::vector<std::byte> record);

    std::vector<std::byte> record_;  // The platform's bytes, written back at the length they came in.
};

}  // namespace fadeloom
