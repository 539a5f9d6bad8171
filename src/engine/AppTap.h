// SPDX-License-Identifier: MIT
// Captures the audio of one app and plays it, processed, on one output device.
#pragma once

#include "engine/TapParameters.h"
#include "platform/AudioSystem.h"

#include <expected>
#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

/// Plays from construction to destruction; another output or sample rate requires a new one. Thread: main.
class AppTap {
public:
    /// Starts playing; after a failure nothing is left of it. `system` must outlive the tap. `name`: the app's display
    /// name. `parameters` are shared with the app's later taps.
    [[nodiscard]] static std::expected<std::unique_ptr<AppTap>, TapError> create(AudioSystem& system,
        std::vector<AudioProcessID> processIDs, const OutputDevice& output, TapScope scope,
        std::shared_ptr<TapParameters> parameters, const std::string& name);

    /// The captured processes.
    [[nodiscard]] const std::vector<AudioProcessID>& processIDs() const { return processIDs_; }
    [[nodiscard]] const std::string& outputUID() const { return output_.uid; }
    [[nodiscard]] OutputDeviceID outputID() const { return output_.id; }
    [[nodiscard]] TapScope scope() const { return scope_; }
    /// Hertz: the rate for which the procedure was created.
    [[nodiscard]] double sampleRate() const { return sampleRate_; }
    /// Whether it still runs. One that the system has ended must be rebuilt.
    [[nodiscard]] bool isRunning() const { return tap_->sampleRate() == sampleRate_; }
    /// How many of the output device's own inputs are disabled.
    [[nodiscard]] int disabledInputs() const { return tap_->disabledInputs(); }

    /// Changes the set of captured processes without a gap. Returns false if the old set is still captured.
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
