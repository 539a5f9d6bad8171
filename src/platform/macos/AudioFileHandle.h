// SPDX-License-Identifier: MIT
// One open file of AudioToolbox.
#pragma once

#include "platform/AudioFiles.h"

#include <atomic>
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
    AudioStatus write(std::uint32_t frameCount, const float* samples) noexcept FADELOOM_NONBLOCKING override;
    AudioFileHealth health() const override;

    /// Writes what was handed over and completes the file. Thread: main.
    AudioStatus close();

private:
    OpaqueExtAudioFile* file_;
    const double sampleRate_;
    // One word each, which nothing else hangs on: relaxed.
    std::atomic<AudioStatus> status_ = kAudioHardwareNoError;
    std::atomic<std::uint64_t> droppedWrites_ = 0;
};

}  // namespace fadeloom
