// SPDX-License-Identifier: MIT
// Recordings through AudioToolbox.
#pragma once

#include "platform/AudioFiles.h"

#include <memory>
#include <vector>

namespace fadeloom {

class AudioFileHandle;

class ExtendedAudioFiles final : public AudioFiles {
public:
    ExtendedAudioFiles();
    ~ExtendedAudioFiles() override;
    ExtendedAudioFiles(const ExtendedAudioFiles&) = delete;
    ExtendedAudioFiles& operator=(const ExtendedAudioFiles&) = delete;

    bool isTaken(const std::filesystem::path& location) const override;
    std::expected<AudioFile*, TapError> create(
        const std::filesystem::path& location, double sampleRate) override;
    std::optional<AudioFileError> dispose(AudioFile& file) override;
    std::string describe(AudioFileError error) const override;

private:
    std::vector<std::unique_ptr<AudioFileHandle>> files_;
};

}  // namespace fadeloom
