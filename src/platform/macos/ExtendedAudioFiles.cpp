// SPDX-License-Identifier: MIT
#include "platform/macos/ExtendedAudioFiles.h"

#include "platform/macos/AudioFileHandle.h"
#include "platform/macos/StatusText.h"

#include <algorithm>
#include <cassert>
#include <system_error>
#include <utility>

namespace fadeloom {

ExtendedAudioFiles::ExtendedAudioFiles() = default;
ExtendedAudioFiles::~ExtendedAudioFiles() = default;

bool ExtendedAudioFiles::isTaken(const std::filesystem::path& location) const
{
    std::error_code unknown;  // Creating the file fails then too, with a reason.
    return std::filesystem::exists(std::filesystem::symlink_status(location, unknown));
}

std::expected<AudioFile*, TapError> ExtendedAudioFiles::create(
    const std::filesystem::path& location, double sampleRate)
{
    auto file = AudioFileHandle::create(location, sampleRate);
    if (!file)
        return std::unexpected(std::move(file.error()));
    return files_.emplace_back(std::move(*file)).get();
}

std::optional<AudioFileError> ExtendedAudioFiles::dispose(AudioFile& file)
{
    const auto found =
        std::ranges::find(files_, &file, [](const auto& open) -> const AudioFile* { return open.get(); });
    assert(found != files_.end());
    const auto failure = (*found)->close();
    files_.erase(found);
    return failure;
}

std::string ExtendedAudioFiles::describe(AudioFileError error) const
{
    return statusText(error.code);
}

}  // namespace fadeloom
