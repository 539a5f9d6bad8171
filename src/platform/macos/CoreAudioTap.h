// SPDX-License-Identifier: MIT
// One tap on macOS.
//
// A process tap mixes the processes and keeps them silent elsewhere while it is read. A private aggregate device joins
// the tap to the output device, which gives the clock. An IO procedure on it runs what the program asked for. They are
// made in this order and taken down in the opposite one.
#pragma once

#include "platform/ProcessTap.h"
#include "platform/TapError.h"
#include "platform/macos/ProcessTaps.h"

#include <CoreAudio/CoreAudio.h>

#include <expected>
#include <memory>
#include <optional>

namespace fadeloom {

/// Thread: main.
class CoreAudioTap final : public ProcessTap {
public:
    /// Builds everything and starts the sound; after a failure nothing of it is left, and the error names the step.
    [[nodiscard]] static std::expected<std::unique_ptr<CoreAudioTap>, TapError> create(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc);
    CoreAudioTap(const CoreAudioTap&) = delete;
    CoreAudioTap& operator=(const CoreAudioTap&) = delete;
    ~CoreAudioTap() override;

    [[nodiscard]] double sampleRate() const override { return sampleRate_; }
    [[nodiscard]] int disabledInputs() const override { return disabledInputs_; }
    [[nodiscard]] bool setProcesses(const std::vector<AudioProcessID>& processes) override;

private:
    explicit CoreAudioTap(OutputDevice output);

    [[nodiscard]] std::expected<void, TapError> build(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc);
    [[nodiscard]] std::expected<AudioStreamBasicDescription, TapError> readFormat() const;
    [[nodiscard]] OSStatus createAggregate();
    [[nodiscard]] TapFormat formatOf(const AudioStreamBasicDescription& format) const;
    [[nodiscard]] OSStatus createIOProc(std::shared_ptr<AudioIOProc> proc);
    void disableDeviceInputs();

    const OutputDevice output_;
    double sampleRate_ = 0;
    int disabledInputs_ = 0;
    ProcessTapDescription description_;
    AudioObjectID tap_ = kAudioObjectUnknown;
    AudioObjectID aggregate_ = kAudioObjectUnknown;
    std::optional<AudioDeviceIOProcID> proc_;
};

}  // namespace fadeloom
