// SPDX-License-Identifier: MIT
// One open file of AudioToolbox.
#pragma once

#include "platform/AudioFiles.h"

#include <cstdint>

struct OpaqueExtAudioFile;

namespace fadeloom {

/// The platform converts the samples and writes them later, on a thread of its own.
class AudioFileHandle final : public AudioFile {
public:
    /// Takes over an open file.
    AudioFileHandle(OpaqueExtAudioFile* owned, double sampleRate);
    /// Closes it, unless `close` did.
    ~AudioFileHandle();
    AudioFileHandle(const AudioFileHandle&) = delete;
    AudioFileHandle& operator=(const AudioFileHandle&) = delete;

    AudioStatus setClientFormat(const AudioStreamBasicDescription& format) override;
    AudioStatus write(std::uint32_t frameCount, const float* samples) noexcept override;
    AudioStatus status() const override { return status_; }

    /// Writes what was handed over and completes the file. Thread: main.
    AudioStatus close();

private:
    OpaqueExtAudioFile* file_;
    const double sampleRate_;
    AudioStatus status_ = kAudioHardwareNoError;
};

}  // namespace fadeloom
