// SPDX-License-Identifier: MIT
// A growing 24-bit stereo WAVE file that others can open at any time.
#pragma once

#include "platform/sndfile/DiskFile.h"
#include "platform/sndfile/Rf64Header.h"

#include <sndfile.h>

#include <cstdint>
#include <expected>
#include <memory>
#include <span>

namespace fadeloom {

/// libsndfile writes a RIFF file, as described in Rf64Header.h. Its header is intercepted on the way to the disk, and
/// replaced by an RF64 header once the file exceeds RIFF. So the file has a plain PCM format chunk at any size, and its
/// header is valid at all times.
///
/// Errors are errno values, 0 for none. Thread: any, one at a time.
class WaveFile {
public:
    static constexpr std::uint32_t channels = 2;
    static constexpr std::uint32_t bytesPerFrame = 6;
    /// The size field of RIFF has 32 bits and excludes the first eight bytes.
    static constexpr std::uint64_t largestRiffFile = 0xFFFFFFFF + std::uint64_t{8};

    /// Writes the header of an empty file to `disk`, which is empty. `sampleRate`: hertz. A file larger than
    /// `largestRiff` bytes becomes RF64.
    [[nodiscard]] static std::expected<std::unique_ptr<WaveFile>, int> create(
        std::unique_ptr<DiskFile> disk, int sampleRate, std::uint64_t largestRiff = largestRiffFile);
    ~WaveFile() { close(); }
    WaveFile(const WaveFile&) = delete;
    WaveFile& operator=(const WaveFile&) = delete;

    /// Writes interleaved samples, whole frames as converted by `convertToPcm24`, and updates the header. If not all of
    /// them can be written, the file ends after the last complete frame.
    int append(std::span<const std::int32_t> samples);
    /// Finalizes the file. Returns the first error since it was created.
    int close();

private:
    struct Callbacks;
    struct Closing {
        void operator()(SNDFILE* file) const { sf_close(file); }
    };

    WaveFile(std::unique_ptr<DiskFile> disk, std::uint64_t largestRiff);
    [[nodiscard]] bool open(int sampleRate);
    /// The disk's error, or EIO if it has none.
    [[nodiscard]] int failure() const;
    void updateHeader();
    sf_count_t write(std::span<const std::byte> bytes);

    const std::unique_ptr<DiskFile> disk_;
    const std::uint64_t largestRiff_;
    std::uint64_t position_ = 0;  // libsndfile's write position.
    std::unique_ptr<SNDFILE, Closing> file_;
};

}  // namespace fadeloom
