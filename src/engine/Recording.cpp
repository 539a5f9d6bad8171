// SPDX-License-Identifier: MIT
#include "engine/Recording.h"

#include <algorithm>
#include <span>
#include <utility>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// A cycle starts up to 190 ms before its samples are available: 8192 frames at 44.1 kHz.
constexpr HostTime longestCycle = 300ms;

// If a disk stalls for longer, further audio is lost.
constexpr std::size_t longestBacklog = 60;  // Seconds.

// Small compared with the file's buffer, so that a backlog is written piece by piece.
constexpr std::size_t piece = 8192 * RecordingLanes::channels;

}  // namespace

std::expected<std::unique_ptr<Recording>, TapError> Recording::create(AudioFiles& files, CycleClocks& clocks,
    std::filesystem::path location, double sampleRate, const Start& start)
{
    const auto file = files.create(location, sampleRate);
    if (!file)
        return std::unexpected(file.error());
    return std::unique_ptr<Recording>(
        new Recording(files, **file, clocks, std::move(location), sampleRate, start));
}

Recording::Recording(AudioFiles& files, AudioFile& file, CycleClocks& clocks, std::filesystem::path location,
    double sampleRate, const Start& start)
    : files_(files)
    , file_(file)
    , location_(std::move(location))
    , sampleRate_(sampleRate)
    , start_(start)
    , lanes_(std::make_shared<RecordingLanes>(sampleRate))
    , timeline_(clocks, sampleRate, start.host)
    , end_(start.host)
{
}

void Recording::writeUntil(HostTime now)
{
    collect();
    write(timeline_.takeUntil(now - longestCycle));
}

void Recording::finish()
{
    if (isFinished_)
        return;
    collect();
    write(timeline_.takeRest(end_));
    unwrittenFrames_ += backlog_.size() / RecordingLanes::channels;
    backlog_.clear();
    isFinished_ = true;
    lastFailure_ = files_.dispose(file_);
}

std::optional<AudioFileError> Recording::failure() const
{
    return isFinished_ ? lastFailure_ : file_.failure();
}

std::chrono::milliseconds Recording::lostTime() const
{
    const auto frames = static_cast<double>(lanes_->lostFrames() + unwrittenFrames_);
    return std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(frames / sampleRate_));
}

void Recording::collect()
{
    lanes_->drain(
        [this](const CycleTime& time, std::span<const float> samples) { timeline_.add(time, samples); });
}

void Recording::write(const std::vector<float>& samples)
{
    backlog_.insert(backlog_.end(), samples.begin(), samples.end());
    std::size_t written = 0;
    while (written < backlog_.size()) {
        const auto size = std::min(piece, backlog_.size() - written);
        if (!file_.write(std::span(backlog_).subspan(written, size)))
            break;
        written += size;
    }
    backlog_.erase(backlog_.begin(), backlog_.begin() + static_cast<std::ptrdiff_t>(written));
    const auto most = longestBacklog * RecordingLanes::channels * static_cast<std::size_t>(sampleRate_);
    if (backlog_.size() > most) {
        unwrittenFrames_ += (backlog_.size() - most) / RecordingLanes::channels;
        backlog_.resize(most);
    }
}

}  // namespace fadeloom
