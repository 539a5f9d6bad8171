// SPDX-License-Identifier: MIT
// Recordings on the disk: 24-bit stereo WAVE files that are written while the sound is captured.
#pragma once

#include "platform/TapError.h"

#include <cstdint>
#include <expected>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace fadeloom {

/// What went wrong with an open file, as the system numbers it; `AudioFiles::describe` puts it into words.
struct AudioFileError {
    std::int32_t code = 0;

    friend bool operator==(const AudioFileError&, const AudioFileError&) = default;
};

/// An open file. Made and closed by `AudioFiles`.
class AudioFile {
public:
    /// Hands over whole frames of interleaved stereo samples, which are copied before this returns and written later:
    /// it never waits for a disk. False, with nothing taken, while the samples that wait to be written leave no room.
    /// After a failure samples are taken and dropped. Thread: main.
    [[nodiscard]] virtual bool write(std::span<const float> samples) noexcept = 0;

    /// The first failure so far. Thread: main.
    [[nodiscard]] virtual std::optional<AudioFileError> failure() const = 0;

protected:
    ~AudioFile() = default;
};

/// Thread: main.
class AudioFiles {
public:
    /// Closes what is still open.
    virtual ~AudioFiles() = default;

    /// Whether something of this name exists already, by the file system's own rules: where it takes upper and lower
    /// case for the same, so does this.
    [[nodiscard]] virtual bool isTaken(const std::filesystem::path& location) const = 0;
    /// Creates a file in place of any file of that name, and opens it. `sampleRate`: hertz, greater than 0. Whatever is
    /// refused leaves no file open.
    [[nodiscard]] virtual std::expected<AudioFile*, TapError> create(
        const std::filesystem::path& location, double sampleRate) = 0;
    /// Writes what was handed over, completes the file and closes it; `file` is gone afterwards. Returns the first
    /// failure since it was created.
    virtual std::optional<AudioFileError> dispose(AudioFile& file) = 0;

    /// An error for the user, without a full stop. Thread: any.
    [[nodiscard]] virtual std::string describe(AudioFileError error) const = 0;
};

}  // namespace fadeloom
