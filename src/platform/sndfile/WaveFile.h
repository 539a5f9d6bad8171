// SPDX-License-Identifier: MIT
// A 24-bit stereo WAVE file that grows, and can be opened by others at any time.
#pragma once

#include "platform/sndfile/DiskFile.h"
#include "platform/sndfile/Rf64Header.h"

#include <sndfile.h>

#include <cstdint>
#include <expected>
#include <memory>
#include <span>

namespace fadeloom {

/// libsndfile writes a RIFF file, which Rf64Header.h describes. Its header passes through here on the way to the disk,
/// and once the file is too large for RIFF it is an RF64 header that gets there. So the file has a plain PCM format
/// chunk at any size, and there is no moment at which its header is wrong.
///
/// Errors are the system's numbers (errno), 0 for none. Thread: any, one at a time.
class WaveFile {
public:
    static constexpr std::uint32_t channels = 2;
    static constexpr std::uint32_t bytesPerFrame = 6;
    /// The size of a RIFF file is a 32-bit number that leaves the first eight bytes out.
    static constexpr std::uint64_t largestRiffFile = 0xFFFFFFFF + std::uint64_t{8};

    /// Writes the header of an empty file into `disk`, which is empty. `sampleRate`: hertz. A file that is larger than
    /// `largestRiff` bytes becomes RF64.
    [[nodiscard]] static std::expected<std::unique_ptr<WaveFile>, int> create(
        std::unique_ptr<DiskFile> disk, int sampleRate, std::uint64_t largestRiff = largestRiffFile);
    ~WaveFile() { close(); }
    WaveFile(const WaveFile&) = delete;
    WaveFile& operator=(const WaveFile&) = delete;

    /// Writes interleaved samples, whole frames in the form that `convertToPcm24` gives, and brings the header up to
    /// date. When not all of them can be written, the file ends with the last whole frame that could.
    int append(std::span<const std::int32_t> samples);
    /// Completes the file. Returns the first failure since it was made.
    int close();

private:
    struct Callbacks;
    struct Closing {
        void operator()(SNDFILE* file) const { sf_close(file); }
    };

    WaveFile(std::unique_ptr<DiskFile> disk, std::uint64_t largestRiff);
    [[nodiscard]] bool open(int sampleRate);
    /// The disk's, or EIO where it has none.
    [[nodiscard]] int failure() const;
    void updateHeader();
    sf_count_t write(std::span<const std::byte> bytes);

    const std::unique_ptr<DiskFile> disk_;
    const std::uint64_t largestRiff_;
    std::uint64_t position_ = 0;  // Where libsndfile writes next.
    std::unique_ptr<SNDFILE, Closing> file_;
};

}  // namespace fadeloom
