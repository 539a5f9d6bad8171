// SPDX-License-Identifier: MIT
// Audio files through libsndfile: 24-bit stereo WAVE of any length.
#pragma once

#include "platform/AudioFiles.h"

#include <memory>
#include <vector>

namespace fadeloom {

class SndfileAudioFile;

/// Codes are errno values. A failed creation leaves no file behind.
class SndfileAudioFiles final : public AudioFiles {
public:
    SndfileAudioFiles();
    ~SndfileAudioFiles() override;
    SndfileAudioFiles(const SndfileAudioFiles&) = delete;
    SndfileAudioFiles& operator=(const SndfileAudioFiles&) = delete;

    bool isTaken(const std::filesystem::path& location) const override;
    std::expected<AudioFile*, TapError> create(
        const std::filesystem::path& location, double sampleRate) override;
    std::optional<AudioFileError> dispose(AudioFile& file) override;
    std::string describe(AudioFileError error) const override;

private:
    std::vector<std::unique_ptr<SndfileAudioFile>> files_;
};

}  // namespace fadeloom
