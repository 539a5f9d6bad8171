// SPDX-License-Identifier: MIT
// One app's sound on its way into one WAVE file.
#pragma once

#include "platform/AudioFiles.h"
#include "platform/TapError.h"

#include <chrono>
#include <expected>
#include <filesystem>
#include <memory>

namespace fadeloom {

/// An open file and who closes it when. Its end closes nothing: a renderer may still be writing, and only its owner
/// knows when none is. Thread: main.
class Recording {
public:
    using Moment = std::chrono::system_clock::time_point;

    /// Creates the file, in place of any file of that name; after a failure none is open. `files` must outlive the
    /// recording. `sampleRate`: hertz, of the sound that will be written.
    [[nodiscard]] static std::expected<std::unique_ptr<Recording>, TapError> create(
        AudioFiles& files, std::filesystem::path location, double sampleRate, Moment startedAt);
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    [[nodiscard]] const std::filesystem::path& location() const { return location_; }
    [[nodiscard]] Moment startedAt() const { return startedAt_; }
    /// For the renderer; of no use once the recording is finished.
    [[nodiscard]] AudioFile& file() const { return file_; }
    /// How the writing went; final once the recording is finished.
    [[nodiscard]] AudioFileHealth health() const;

    [[nodiscard]] bool isFinished() const { return isFinished_; }
    /// Completes and closes the file; does nothing the second time. No renderer may be writing to it any more.
    void finish();

private:
    Recording(AudioFiles& files, AudioFile& file, std::filesystem::path location, Moment startedAt);

    AudioFiles& files_;
    AudioFile& file_;
    const std::filesystem::path location_;
    const Moment startedAt_;
    AudioFileHealth lastHealth_;
    bool isFinished_ = false;
};

}  // namespace fadeloom
