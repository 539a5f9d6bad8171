// SPDX-License-Identifier: MIT
// Audio files that are written while the sound is captured.
//
// The calls keep the shape of extended audio files: a file format on the disk, a client format in which samples are
// handed over, and a writer of its own behind each file, so that handing over never waits for a disk.
#pragma once

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
/// The samples were not taken: what waits to be written leaves no room for them yet.
inline constexpr AudioStatus kExtAudioFileError_AsyncWriteBufferOverflow = -66570;

/// An open file. Made and closed by `AudioFiles`.
class AudioFile {
public:
    /// The format in which samples are handed over from now on; before the first write. Thread: main.
    [[nodiscard]] virtual AudioStatus setClientFormat(const AudioStreamBasicDescription& format) = 0;

    /// Hands over `frameCount` frames of interleaved samples in the client format, which are copied before this
    /// returns and written later. Zero frames, with no samples, prime the writer: what a first write needs is
    /// prepared. Never waits for a disk. Thread: main.
    virtual AudioStatus write(std::uint32_t frameCount, const float* samples) noexcept = 0;

    /// The first failure so far, after which the file takes nothing. Thread: main.
    [[nodiscard]] virtual AudioStatus status() const = 0;

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
