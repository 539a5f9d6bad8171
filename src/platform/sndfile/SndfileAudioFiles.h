// SPDX-License-Identifier: MIT
// Audio files through libsndfile: 24-bit stereo WAVE of any length.
#pragma once

#include "platform/AudioFiles.h"

#include <memory>
#include <vector>

namespace fadeloom {

class SndfileAudioFile;

/// Statuses are error numbers of the system and those of FileStatus.h. Whatever is refused leaves no file behind.
class SndfileAudioFiles final : public AudioFiles {
public:
    SndfileAudioFiles();
    ~SndfileAudioFiles() override;
    SndfileAudioFiles(const SndfileAudioFiles&) = delete;
    SndfileAudioFiles& operator=(const SndfileAudioFiles&) = delete;

    bool isTaken(const std::filesystem::path& location) const override;
    AudioResult<AudioFile*> create(
        const std::filesystem::path& location, const AudioStreamBasicDescription& fileFormat) override;
    /// Returns the first failure since the file was made.
    AudioStatus dispose(AudioFile& file) override;
    /// Thread: any.
    std::string describe(AudioStatus status) const override;

private:
    std::vector<std::unique_ptr<SndfileAudioFile>> files_;
};

}  // namespace fadeloom
