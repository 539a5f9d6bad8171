// SPDX-License-Identifier: MIT
#include "engine/Recording.h"

#include "platform/WaveFormats.h"

#include <utility>

namespace fadeloom {
std::expected<std::unique_ptr<Recording>, TapError> Recording::create(
    AudioFiles& files, std::filesystem::path location, double sampleRate, Moment startedAt)
{
    const auto file = files.create(location, waveFileFormat(sampleRate));
    if (!file)
        return std::unexpected(TapError{"Create recording file", file.error()});
    const auto status = (*file)->setClientFormat(waveClientFormat(sampleRate));
    if (status != kAudioHardwareNoError) {
        files.dispose(**file);
        return std::unexpected(TapError{"Set recording format", status});
    }
    (*file)->write(0, nullptr);  // So that the first write of the IO thread has nothing left to prepare.
    return std::unique_ptr<Recording>(new Recording(files, **file, std::move(location), startedAt));
}

Recording::Recording(AudioFiles& files, AudioFile& file, std::filesystem::path location, Moment startedAt)
    : files_(files)
    , file_(file)
    , location_(std::move(location))
    , startedAt_(startedAt)
{
}

AudioFileHealth Recording::health() const
{
    return isFinished_ ? lastHealth_ : file_.health();
}

void Recording::finish()
{
    if (isFinished_)
        return;
    lastHealth_ = file_.health();
    isFinished_ = true;
    const auto status = files_.dispose(file_);
    if (lastHealth_.status == kAudioHardwareNoError)
        lastHealth_.status = status;
}

}  // namespace fadeloom
