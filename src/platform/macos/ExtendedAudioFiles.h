// SPDX-License-Identifier: MIT
// Audio files through AudioToolbox.
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
    AudioResult<AudioFile*> create(
        const std::filesystem::path& location, const AudioStreamBasicDescription& fileFormat) override;
    AudioStatus dispose(AudioFile& file) override;
    std::string describe(AudioStatus status) const override;

private:
    std::vector<std::unique_ptr<AudioFileHandle>> files_;
};

}  // namespace fadeloom
