// SPDX-License-Identifier: MIT
// Audio files: 24-bit stereo WAVE files that are written while audio is captured.
#pragma once

#include "platform/TapError.h"

#include <cstdint>
#include <expected>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace fadeloom {

/// An open file's error, in the system's numbering; `AudioFiles::describe` gives the message.
struct AudioFileError {
    std::int32_t code = 0;

    friend bool operator==(const AudioFileError&, const AudioFileError&) = default;
};

/// An open file. Created and closed by `AudioFiles`.
class AudioFile {
public:
    /// Queues whole frames of interleaved stereo samples, which are copied before this returns and written later: it
    /// never blocks on a disk. Returns false, without queueing any, if they do not fit in the buffer. After an error
    /// samples are accepted and discarded. Thread: main.
    [[nodiscard]] virtual bool write(std::span<const float> samples) noexcept = 0;

    /// The first error so far. Thread: main.
    [[nodiscard]] virtual std::optional<AudioFileError> failure() const = 0;

protected:
    ~AudioFile() = default;
};

/// Thread: main.
class AudioFiles {
public:
    /// Closes all open files.
    virtual ~AudioFiles() = default;

    /// Whether a file of this name exists, by the file system's own rules: case-insensitive if that is.
    [[nodiscard]] virtual bool isTaken(const std::filesystem::path& location) const = 0;
    /// Creates a file, replacing any file of that name, and opens it. `sampleRate`: hertz, greater than 0. After a
    /// failure no file is open.
    [[nodiscard]] virtual std::expected<AudioFile*, TapError> create(
        const std::filesystem::path& location, double sampleRate) = 0;
    /// Writes queued samples, finalizes the file and closes it; `file` is invalid afterwards. Returns the first error
    /// since it was created.
    virtual std::optional<AudioFileError> dispose(AudioFile& file) = 0;

    /// An error for the user, without a full stop. Thread: any.
    [[nodiscard]] virtual std::string describe(AudioFileError error) const = 0;
};

}  // namespace fadeloom
