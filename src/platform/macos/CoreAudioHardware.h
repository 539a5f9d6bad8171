// SPDX-License-Identifier: MIT
// The audio hardware of macOS. It passes calls through and remembers nothing: the audio system does.
#pragma once

#include "platform/AudioHardware.h"

namespace fadeloom {

/// Listeners are called from the main dispatch queue, which the main loop serves.
class CoreAudioHardware final : public AudioHardware {
public:
    AudioResult<std::size_t> propertySize(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override;
    AudioResult<std::size_t> readProperty(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<std::byte> value) const override;
    AudioStatus writeProperty(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<const std::byte> value) override;
    AudioResult<std::optional<std::string>> readText(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override;
    AudioResult<Subscription> listen(
        AudioObjectID object, const AudioObjectPropertyAddress& address, Listener listener) override;

    AudioResult<AudioObjectID> createProcessTap(const TapDescription& description) override;
    AudioStatus describeProcessTap(AudioObjectID tap, const TapDescription& description) override;
    AudioStatus destroyProcessTap(AudioObjectID tap) override;

    AudioResult<AudioObjectID> createAggregateDevice(const AggregateDescription& description) override;
    AudioStatus destroyAggregateDevice(AudioObjectID device) override;

    AudioResult<AudioDeviceIOProcID> createIOProc(AudioObjectID device, AudioIOProc& proc) override;
    AudioStatus destroyIOProc(AudioObjectID device, AudioDeviceIOProcID proc) override;
    AudioStatus start(AudioObjectID device, AudioDeviceIOProcID proc) override;
    AudioStatus stop(AudioObjectID device, AudioDeviceIOProcID proc) override;
};

}  // namespace fadeloom
