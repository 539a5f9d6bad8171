// SPDX-License-Identifier: MIT
// One open file: samples are pushed into a ring, and a dedicated thread writes them to disk.
#pragma once

#include "base/SpscRing.h"
#include "platform/AudioFiles.h"
#include "platform/sndfile/WaveFile.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <expected>
#include <memory>
#include <stop_token>
#include <thread>

namespace fadeloom {

/// Pushing samples does not wake the writer, which would take a system call: it polls ten times a second. The header is
/// updated with every write, so a file whose program is killed lacks only the last tenth of a second. After a failed
/// write samples are dropped; the file remains as it is.
class SndfileAudioFile final : public AudioFile {
public:
    /// Opens the empty file `disk` and starts its writer. Call while signals are blocked (`SignalBlock`), which the
    /// writer inherits. Errors: errno values.
    [[nodiscard]] static std::expected<std::unique_ptr<SndfileAudioFile>, int> open(
        std::unique_ptr<DiskFile> disk, int sampleRate);
    /// Closes the file.
    ~SndfileAudioFile();
    SndfileAudioFile(const SndfileAudioFile&) = delete;
    SndfileAudioFile& operator=(const SndfileAudioFile&) = delete;

    bool write(std::span<const float> samples) noexcept override;
    std::optional<AudioFileError> failure() const override;

    /// Blocks until everything is written and the file is closed. Returns the first error. Thread: main.
    std::optional<AudioFileError> close();

private:
    SndfileAudioFile(std::unique_ptr<WaveFile> file, int sampleRate);
    [[nodiscard]] bool hasFailed() const { return firstFailure_.load(std::memory_order_relaxed) != 0; }

    /// The writer thread's main function.
    void work(const std::stop_token& stop);
    void drainRing();
    /// Records the first error.
    void note(int error);

    SpscRing<float> ring_;
    std::atomic<int> firstFailure_ = 0;  // Relaxed: it guards no other memory.

    // Used by the writer thread.
    const std::unique_ptr<WaveFile> file_;
    std::array<std::int32_t, 8192> block_{};
    std::jthread writer_;
};

}  // namespace fadeloom
