// SPDX-License-Identifier: MIT
// Audio files that are written while the sound is captured.
//
// The calls keep the shape of extended audio files: a file format on the disk, a client format in which samples are
// handed over, and a writer of its own behind each file, so that handing over never waits for a disk.
#pragma once

#include "base/RealTime.h"
#include "platform/AudioStream.h"

#include <cstdint>
#include <expected>
#include <filesystem>
#include <string>

namespace fadeloom {

/// No file is made in this format.
inline constexpr AudioStatus kAudioFileUnsupportedDataFormatError = statusCode("fmt?");
/// Samples are not taken in this format.
inline constexpr AudioStatus kExtAudioFileError_InvalidDataFormat = -66566;
/// The client format has not been set.
inline constexpr AudioStatus kExtAudioFileError_InvalidOperationOrder = -66565;
/// The samples were dropped: what waits to be written leaves no room for them.
inline constexpr AudioStatus kExtAudioFileError_AsyncWriteBufferOverflow = -66570;

/// How the writing went so far.
struct AudioFileHealth {
    AudioStatus status = kAudioHardwareNoError;  // The first failure; the file takes nothing after it.
    std::uint64_t droppedWrites = 0;  // Writes that were lost whole, for the writer was too far behind.

    friend bool operator==(const AudioFileHealth&, const AudioFileHealth&) = default;
};

/// An open file. Made and closed by `AudioFiles`.
class AudioFile {
public:
    /// The format in which samples are handed over from now on; before the first write. Thread: main.
    [[nodiscard]] virtual AudioStatus setClientFormat(const AudioStreamBasicDescription& format) = 0;

    /// Hands over `frameCount` frames of interleaved samples in the client format, which are copied before this
    /// returns and written later. Zero frames, with no samples, prime the writer: what a first write needs is
    /// prepared. Thread: the IO thread, or main before that has the file; one at a time.
    virtual AudioStatus write(
        std::uint32_t frameCount, const float* samples) noexcept FADELOOM_NONBLOCKING = 0;

    /// Thread: main.
    [[nodiscard]] virtual AudioFileHealth health() const = 0;

protected:
    ~AudioFile() = default;
};

/// Thread: main.
class AudioFiles {
public:
    /// Closes what is still open.
    virtual ~AudioFiles() = default;

    /// Whether something of this name is there already, by the file system's own rules: where it takes upper and lower
    /// case for the same, so does this.
    [[nodiscard]] virtual bool isTaken(const std::filesystem::path& location) const = 0;
    /// Creates a WAVE file, in place of any file of that name, and opens it.
    [[nodiscard]] virtual AudioResult<AudioFile*> create(
        const std::filesystem::path& location, const AudioStreamBasicDescription& fileFormat) = 0;
    /// Writes what was handed over, completes the file and closes it; `file` is gone afterwards. Nothing may be
    /// writing to it any more.
    virtual AudioStatus dispose(AudioFile& file) = 0;

    /// What a status says, for the user; without a full stop.
    [[nodiscard]] virtual std::string describe(AudioStatus status) const = 0;
};

}  // namespace fadeloom
