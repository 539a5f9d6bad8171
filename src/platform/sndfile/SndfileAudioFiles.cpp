// SPDX-License-Identifier: MIT
#include "platform/sndfile/SndfileAudioFiles.h"

#include "platform/sndfile/SignalBlock.h"
#include "platform/sndfile/SndfileAudioFile.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <system_error>

namespace fadeloom {

namespace {

/// Whole hertz, as in a WAVE file, and no more than devices support: the ring is sized for four seconds.
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
    std::error_code unknown;  // Creating the file fails then too, with a reason.
    return std::filesystem::exists(std::filesystem::symlink_status(location, unknown));
}

std::expected<AudioFile*, TapError> SndfileAudioFiles::create(
    const std::filesystem::path& location, double sampleRate)
{
    const auto refused = [](int error) { return std::unexpected(TapError{"Create recording file", error}); };
    if (!isPossibleRate(sampleRate))
        return refused(EINVAL);
    const SignalBlock held;
    auto disk = DiskFile::create(location);
    if (!disk)
        return refused(disk.error());
    auto file = SndfileAudioFile::open(std::move(*disk), static_cast<int>(sampleRate));
    if (!file) {
        ::unlink(location.c_str());
        return refused(file.error());
    }
    return files_.emplace_back(std::move(*file)).get();
}

std::optional<AudioFileError> SndfileAudioFiles::dispose(AudioFile& file)
{
    const auto found =
        std::ranges::find(files_, &file, [](const auto& open) -> const AudioFile* { return open.get(); });
    assert(found != files_.end());
    const auto failure = (*found)->close();
    files_.erase(found);
    return failure;
}

std::string SndfileAudioFiles::describe(AudioFileError error) const
{
    std::array<char, 256> text;
    return strerror_r(error.code, text.data(), text.size());
}

}  // namespace fadeloom
