// SPDX-License-Identifier: MIT
// One tap on macOS.
//
// A process tap mixes the processes and mutes them elsewhere while it is read. A private aggregate device combines the
// tap with the output device, which provides the clock. An IO procedure on it runs the program's procedure. They are
// created in this order and torn down in reverse.
//
// Three external events end a tap: its device is removed, the audio service restarts, or it delivers zeros while its
// processes play. It then has no rate, and its owner creates a new one.
#pragma once

#include "platform/ProcessTap.h"
#include "platform/TapError.h"
#include "platform/macos/ProcessTaps.h"
#include "platform/macos/ServiceRestarts.h"
#include "platform/macos/SilenceCount.h"
#include "platform/macos/SilentTaps.h"

#include <CoreAudio/CoreAudio.h>

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>

namespace fadeloom {

class PropertyListener;

/// State that taps share with their audio system, which outlives them.
struct TapContext {
    ServiceRestarts& restarts;
    SilentTaps& silentTaps;
};

/// Thread: main.
class CoreAudioTap final : public ProcessTap {
public:
    /// Builds everything and starts the device; after a failure nothing of it is left, and the error names the step.
    [[nodiscard]] static std::expected<std::unique_ptr<CoreAudioTap>, TapError> create(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc, TapContext surroundings);
    CoreAudioTap(const CoreAudioTap&) = delete;
    CoreAudioTap& operator=(const CoreAudioTap&) = delete;
    ~CoreAudioTap() override;

    [[nodiscard]] double sampleRate() const override { return isRunning_ ? sampleRate_ : 0; }
    [[nodiscard]] int disabledInputs() const override { return disabledInputs_; }
    [[nodiscard]] bool setProcesses(const std::vector<AudioProcessID>& processes) override;

private:
    CoreAudioTap(OutputDevice output, TapContext surroundings);

    [[nodiscard]] std::expected<void, TapError> build(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc);
    [[nodiscard]] std::expected<AudioStreamBasicDescription, TapError> readFormat() const;
    [[nodiscard]] OSStatus createAggregate();
    [[nodiscard]] TapFormat formatOf(const AudioStreamBasicDescription& format) const;
    [[nodiscard]] OSStatus createIOProc(std::shared_ptr<AudioIOProc> proc, std::size_t tapBufferCount);
    [[nodiscard]] std::expected<void, TapError> disableDeviceInputs();
    void watch();
    void checkForSilence();
    void abandon();

    const OutputDevice output_;
    const TapContext context_;
    bool isRunning_ = false;
    double sampleRate_ = 0;
    int disabledInputs_ = 0;
    ProcessTapDescription description_;
    AudioObjectID tap_ = kAudioObjectUnknown;
    AudioObjectID aggregate_ = kAudioObjectUnknown;
    std::optional<AudioDeviceIOProcID> proc_;

    // Shared with the block, which the system keeps until no cycle can reach it.
    const std::shared_ptr<SilenceCount> silence_ = std::make_shared<SilenceCount>();
    std::uint64_t silentWhilePaused_ = 0;  // Frames of silence during which no process was playing.
    std::unique_ptr<PropertyListener> deviceListener_;
    Subscription restarts_;
    Subscription checks_;
};

}  // namespace fadeloom
