// SPDX-License-Identifier: MIT
// Captures the sound of one app and plays it, processed, on one output device.
//
// A process tap mixes the app's processes and keeps them silent elsewhere while it is read. A private aggregate device
// joins the tap to the output device, which gives the clock. An IO procedure on it runs the app's renderer. They are
// made in this order and taken down in the opposite one.
#pragma once

#include "engine/Renderer.h"
#include "engine/TapError.h"
#include "engine/TapParameters.h"
#include "platform/AudioHardware.h"

#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// Plays from its creation until its teardown; another output or another sample rate takes a new one. Thread: main.
class AppTap {
public:
    /// Builds everything and starts the sound; after a failure nothing of it is left. `hardware` outlives the tap.
    /// `name`: the app's, as the user knows it. `parameters` are shared with the app's later taps.
    [[nodiscard]] static std::expected<std::unique_ptr<AppTap>, TapError> create(AudioHardware& hardware,
        std::vector<AudioObjectID> processIDs, std::string outputUID, AudioObjectID outputID,
        std::shared_ptr<TapParameters> parameters, const std::string& name);
    AppTap(const AppTap&) = delete;
    AppTap& operator=(const AppTap&) = delete;
    ~AppTap();

    /// The processes that are captured now.
    [[nodiscard]] const std::vector<AudioObjectID>& processIDs() const { return description_.processes; }
    [[nodiscard]] const std::string& outputUID() const { return outputUID_; }
    [[nodiscard]] AudioObjectID outputID() const { return outputID_; }
    /// Hertz: the rate at which the procedure runs.
    [[nodiscard]] double sampleRate() const { return sampleRate_; }
    /// How many of the output device's own inputs are switched off for us.
    [[nodiscard]] int disabledInputs() const { return disabledInputs_; }

    /// Captures these processes from now on, without a gap. When it returns false the old ones are still captured.
    [[nodiscard]] bool update(std::vector<AudioObjectID> processIDs);

    /// Stops the sound and takes everything down. Does nothing the second time.
    void teardown();

private:
    AppTap(AudioHardware& hardware, std::string outputUID, AudioObjectID outputID);

    [[nodiscard]] std::expected<void, TapError> build(std::vector<AudioObjectID> processIDs,
        std::shared_ptr<TapParameters> parameters, const std::string& name);
    [[nodiscard]] std::expected<AudioStreamBasicDescription, TapError> readFormat() const;
    [[nodiscard]] AggregateDescription aggregateDescription() const;
    [[nodiscard]] RenderLayout layoutFor(const AudioStreamBasicDescription& format) const;
    void disableDeviceInputs();

    AudioHardware& hardware_;
    const std::string outputUID_;
    const AudioObjectID outputID_;
    double sampleRate_ = 0;
    int disabledInputs_ = 0;
    TapDescription description_;
    AudioObjectID tap_ = kAudioObjectUnknown;
    AudioObjectID aggregate_ = kAudioObjectUnknown;
    std::unique_ptr<Renderer> renderer_;
    std::optional<AudioDeviceIOProcID> proc_;
};

}  // namespace fadeloom
