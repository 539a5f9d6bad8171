// SPDX-License-Identifier: MIT
// One open file of AudioToolbox.
#pragma once

#include "platform/AudioFiles.h"

#include <cstdint>
#include <expected>
#include <memory>

struct OpaqueExtAudioFile;

namespace fadeloom {

/// The platform converts the samples and writes them later, on its own thread.
class AudioFileHandle final : public AudioFile {
public:
    /// Creates a file in place of any file of that name, sets its two formats and primes its asynchronous writer, so
    /// that the first real write allocates nothing. Errors: the platform's, with the step that failed.
    [[nodiscard]] static std::expected<std::unique_ptr<AudioFileHandle>, TapError> create(
        const std::filesystem::path& location, double sampleRate);
    /// Closes it, unless `close` has done so.
    ~AudioFileHandle();
    AudioFileHandle(const AudioFileHandle&) = delete;
    AudioFileHandle& operator=(const AudioFileHandle&) = delete;

    bool write(std::span<const float> samples) noexcept override;
    std::optional<AudioFileError> failure() const override;

    /// Writes pending samples and finalizes the file. Returns the first error since it was created. Thread: main.
    std::optional<AudioFileError> close();

private:
    explicit AudioFileHandle(OpaqueExtAudioFile* owned)
        : file_(owned)
    {
    }
    void note(std::int32_t status);

    OpaqueExtAudioFile* file_;
    std::int32_t firstFailure_ = 0;
};

}  // namespace fadeloom
