// SPDX-License-Identifier: MIT
#include "platform/sndfile/SndfileAudioFiles.h"

#include "platform/WaveFormats.h"
#include "platform/sndfile/FileStatus.h"
#include "platform/sndfile/SignalsHeld.h"
#include "platform/sndfile/SndfileAudioFile.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <system_error>

#include <unistd.h>

namespace fadeloom {

namespace {

/// Whole hertz, as a WAVE file tells them, and no more than devices have: memory is set aside for four seconds.
bool isPossibleRate(double rate)
{
    constexpr double highest = 768'000;
    return rate >= 1 && rate <= highest && rate == std::floor(rate);
}

}  // namespace

SndfileAudioFiles::SndfileAudioFiles() = default;
SndfileAudioFiles::~SndfileAudioFiles() = default;

bool SndfileAudioFiles::isTaken(const std::filesystem::path& location) const
{
    std::error_code unknown;  // Then creating the file fails, too, and says why.
    return std::filesystem::exists(std::filesystem::symlink_status(location, unknown));
}

AudioResult<AudioFile*> SndfileAudioFiles::create(
    const std::filesystem::path& location, const AudioStreamBasicDescription& fileFormat)
{
    if (!isPossibleRate(fileFormat.sampleRate)
        || !isSameFormat(fileFormat, waveFileFormat(fileFormat.sampleRate)))
        return std::unexpected(kAudioFileUnsupportedDataFormatError);
    const SignalsHeld held;
    auto disk = DiskFile::create(location);
    if (!disk)
        return std::unexpected(disk.error());
    auto file = SndfileAudioFile::open(std::move(*disk), static_cast<int>(fileFormat.sampleRate));
    if (!file) {
        ::unlink(location.c_str());
        return std::unexpected(file.error());
    }
    return files_.emplace_back(std::move(*file)).get();
}

AudioStatus SndfileAudioFiles::dispose(AudioFile& file)
{
    const auto found =
        std::ranges::find(files_, &file, [](const auto& open) -> const AudioFile* { return open.get(); });
    assert(found != files_.end());
    const AudioStatus status = (*found)->close();
    files_.erase(found);
    return status;
}

std::string SndfileAudioFiles::describe(AudioStatus status) const
{
    return fileStatusText(status);
}

}  // namespace fadeloom
