// SPDX-License-Identifier: MIT
// Captures the sound of one app and plays it, processed, on one output device.
#pragma once

#include "engine/TapParameters.h"
#include "platform/AudioSystem.h"

#include <expected>
#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

/// Plays from its creation until its destruction; another output or another sample rate takes a new one. Thread: main.
class AppTap {
public:
    /// Starts the sound; after a failure nothing of it is left. `system` outlives the tap. `name`: the app's, as the
    /// user knows it. `parameters` are shared with the app's later taps.
    [[nodiscard]] static std::expected<std::unique_ptr<AppTap>, TapError> create(AudioSystem& system,
        std::vector<AudioProcessID> processIDs, const OutputDevice& output, TapScope scope,
        std::shared_ptr<TapParameters> parameters, const std::string& name);

    /// The processes that are captured now.
    [[nodiscard]] const std::vector<AudioProcessID>& processIDs() const { return processIDs_; }
    [[nodiscard]] const std::string& outputUID() const { return output_.uid; }
    [[nodiscard]] OutputDeviceID outputID() const { return output_.id; }
    [[nodiscard]] TapScope scope() const { return scope_; }
    /// Hertz: the rate at which the procedure was made to run.
    [[nodiscard]] double sampleRate() const { return sampleRate_; }
    /// Whether it still does. One that the system has ended is to be made anew.
    [[nodiscard]] bool isRunning() const { return tap_->sampleRate() == sampleRate_; }
    /// How many of the output device's own inputs are switched off for us.
    [[nodiscard]] int disabledInputs() const { return tap_->disabledInputs(); }

    /// Captures these processes from now on, without a gap. When it returns false the old ones are still captured.
    [[nodiscard]] bool update(std::vector<AudioProcessID> processIDs);

private:
    AppTap(OutputDevice output, TapScope scope, std::vector<AudioProcessID> processIDs,
        std::unique_ptr<ProcessTap> tap);

    const OutputDevice output_;
    const TapScope scope_;
    std::vector<AudioProcessID> processIDs_;
    const std::unique_ptr<ProcessTap> tap_;
    const double sampleRate_;
};

}  // namespace fadeloom
