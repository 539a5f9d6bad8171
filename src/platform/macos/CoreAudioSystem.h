// SPDX-License-Identifier: MIT
// The audio system of macOS. It forwards queries and caches only process identities: the rest is the system's state.
#pragma once

#include "platform/AudioSystem.h"
#include "platform/macos/ServiceRestarts.h"
#include "platform/macos/SilentTaps.h"

#include <CoreAudio/CoreAudio.h>

#include <memory>

namespace fadeloom {

/// Listeners are called on the main dispatch queue, which the main loop serves; all of them once after a restart of the
/// audio service.
class CoreAudioSystem final : public AudioSystem {
public:
    CoreAudioSystem();
    ~CoreAudioSystem() override;

    [[nodiscard]] std::vector<AudioProcess> processes(ReadMic readMic) override;
    [[nodiscard]] Subscription whenProcessesChange(Listener listener) override;
    [[nodiscard]] std::vector<OutputDevice> outputDevices() const override;
    [[nodiscard]] Subscription whenOutputDevicesChange(Listener listener) override;
    [[nodiscard]] double sampleRate(OutputDeviceID device) const override;
    [[nodiscard]] std::optional<std::string> defaultOutput() const override;
    [[nodiscard]] Subscription whenDefaultOutputChanges(Listener listener) override;
    bool setDefaultOutput(const OutputDevice& device) override;
    [[nodiscard]] HostTime hostTime() const override;
    [[nodiscard]] std::expected<std::unique_ptr<ProcessTap>, TapError> createTap(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc) override;

private:
    struct ProcessWatch;

    [[nodiscard]] Subscription listen(AudioObjectPropertySelector selector, Listener listener);

    ServiceRestarts restarts_;
    SilentTaps silentTaps_;
    std::shared_ptr<ProcessWatch> processWatch_;  // Shared with subscriptions, which hold a weak reference.
};

}  // namespace fadeloom
