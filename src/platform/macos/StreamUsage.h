// SPDX-License-Identifier: MIT
// The streams of a device that an IO procedure uses.
//
// By default a device delivers all of its streams: an output device with a microphone would activate it, and light its
// indicator, for a procedure that ignores it.
#pragma once

#include <CoreAudio/CoreAudio.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace fadeloom {

/// A copy of the platform's record for one procedure and one direction. Thread: main.
class StreamUsage {
public:
    /// nullopt if the record cannot be read or is shorter than its own count implies.
    [[nodiscard]] static std::optional<StreamUsage> read(
        AudioObjectID device, AudioDeviceIOProcID proc, AudioObjectPropertyScope scope);

    [[nodiscard]] std::size_t streamCount() const;
    /// `stream`: zero-based, in the device's order, below `streamCount`.
    [[nodiscard]] bool isOn(std::size_t stream) const;
    void switchOff(std::size_t stream);

    /// Writes the record to the procedure that it was read from; returns the platform's status.
    [[nodiscard]] OSStatus write(AudioObjectID device, AudioObjectPropertyScope scope) const;

private:
    explicit StreamUsage(std::vector<std::byte> record);

    std::vector<std::byte> record_;  // The platform's bytes, written back with their original length.
};

}  // namespace fadeloom
