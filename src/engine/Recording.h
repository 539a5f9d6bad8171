// SPDX-License-Identifier: MIT
// One app's sound on its way into one WAVE file.
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

/// An open file and who closes it when. Its end closes nothing: a renderer may still be writing, and only its owner
/// knows when none is. Thread: main.
class Recording {
public:
    using Moment = std::chrono::system_clock::time_point;

    /// How often `writeUntil` is to be called while the recording goes on.
    static constexpr std::chrono::milliseconds interval{100};

    struct Start {
        Moment date;
        HostTime host;
    };

    /// Creates the file, in place of any file of that name; after a failure none is open. `files` and `clocks` must
    /// outlive the recording. `sampleRate`: hertz, of the sound that will be written.
    [[nodiscard]] static std::expected<std::unique_ptr<Recording>, TapError> create(AudioFiles& files,
        CycleClocks& clocks, std::filesystem::path location, double sampleRate, const Start& start);
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    [[nodiscard]] const std::filesystem::path& location() const { return location_; }
    [[nodiscard]] Moment startedAt() const { return start_.date; }
    /// For the renderers.
    [[nodiscard]] const std::shared_ptr<RecordingLanes>& lanes() const { return lanes_; }

    /// Writes what was captured until shortly before `now`, and silence where nothing was.
    void writeUntil(HostTime now);
    /// The recording ends at this moment. Renderers may still finish the cycle that they are in.
    void stop(HostTime end) { end_ = end; }
    [[nodiscard]] bool isFinished() const { return isFinished_; }
    /// Writes what is left until the stop, completes the file and closes it; does nothing the second time. No renderer
    /// may be writing to it any more.
    void finish();

    /// The first failure of its file; final once the recording is finished.
    [[nodiscard]] std::optional<AudioFileError> failure() const;
    /// What was captured and is not in the file, since the disk was too slow, or the program.
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
    std::vector<float> backlog_;  // What the file had no room for yet.
    std::uint64_t unwrittenFrames_ = 0;
    std::optional<AudioFileError> lastFailure_;
    bool isFinished_ = false;
};

}  // namespace fadeloom
