// SPDX-License-Identifier: MIT
// One app's recording to one WAVE file.
//
//      renderers ──► lanes ──► timeline ──► file
//        IO threads       main thread
#pragma once

#include "engine/RecordingLanes.h"
#include "engine/RecordingTimeline.h"
#include "platform/AudioFiles.h"
#include "platform/TapError.h"

#include <chrono>
#include <cstdint>
#include <expected>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace fadeloom {

/// An open file with its closing time. Its destructor closes nothing: a renderer may still be writing, and only the
/// owner knows when none is. Thread: main.
class Recording {
public:
    using Moment = std::chrono::system_clock::time_point;

    /// How often to call `writeUntil` during the recording.
    static constexpr std::chrono::milliseconds interval{100};

    struct Start {
        Moment date;
        HostTime host;
    };

    /// Creates the file, replacing any file of that name; after a failure none is open. `files` and `clocks` must
    /// outlive the recording. `sampleRate`: hertz, of the audio to be written.
    [[nodiscard]] static std::expected<std::unique_ptr<Recording>, TapError> create(AudioFiles& files,
        CycleClocks& clocks, std::filesystem::path location, double sampleRate, const Start& start);
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    [[nodiscard]] const std::filesystem::path& location() const { return location_; }
    [[nodiscard]] Moment startedAt() const { return start_.date; }
    /// For the renderers.
    [[nodiscard]] const std::shared_ptr<RecordingLanes>& lanes() const { return lanes_; }

    /// Writes what was captured until shortly before `now`, with silence in the gaps.
    void writeUntil(HostTime now);
    /// Ends the recording at this time. Renderers may still finish their current cycle.
    void stop(HostTime end) { end_ = end; }
    [[nodiscard]] bool isFinished() const { return isFinished_; }
    /// Writes what is left until the stop, finalizes the file and closes it; idempotent. No renderer may be writing to
    /// it any more.
    void finish();

    /// The first error of its file; final once the recording is finished.
    [[nodiscard]] std::optional<AudioFileError> failure() const;
    /// The captured audio that is missing from the file, because the disk was too slow, or the program.
    [[nodiscard]] std::chrono::milliseconds lostTime() const;

private:
    Recording(AudioFiles& files, AudioFile& file, CycleClocks& clocks, std::filesystem::path location,
        double sampleRate, const Start& start);

    void collect();
    void write(const std::vector<float>& samples);

    AudioFiles& files_;
    AudioFile& file_;
    const std::filesystem::path location_;
    const double sampleRate_;
    const Start start_;
    const std::shared_ptr<RecordingLanes> lanes_;
    RecordingTimeline timeline_;
    HostTime end_;
    std::vector<float> backlog_;  // Not yet accepted by the file.
    std::uint64_t unwrittenFrames_ = 0;
    std::optional<AudioFileError> lastFailure_;
    bool isFinished_ = false;
};

}  // namespace fadeloom
