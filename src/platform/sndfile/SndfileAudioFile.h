// SPDX-License-Identifier: MIT
// One open file: samples go into a ring, and a thread of the file's own writes them to the disk.
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

/// Handing samples over wakes nobody, which would be a system call: the writer looks for them by itself, ten times a
/// second. What it has written counts in the file's header at once, so a file whose program is killed lacks what was
/// handed over in the last tenth of a second. After a failed write samples are dropped; the file stays as it is.
class SndfileAudioFile final : public AudioFile {
public:
    /// Opens the empty file `disk` and starts its writer. To be called while signals are held (`SignalsHeld`), which
    /// the writer inherits. Errors: the system's numbers.
    [[nodiscard]] static std::expected<std::unique_ptr<SndfileAudioFile>, int> open(
        std::unique_ptr<DiskFile> disk, int sampleRate);
    /// Closes the file.
    ~SndfileAudioFile();
    SndfileAudioFile(const SndfileAudioFile&) = delete;
    SndfileAudioFile& operator=(const SndfileAudioFile&) = delete;

    bool write(std::span<const float> samples) noexcept override;
    std::optional<AudioFileError> failure() const override;

    /// Waits until all that was handed over is written and the file is closed. Returns the first failure. Thread: main.
    std::optional<AudioFileError> close();

private:
    SndfileAudioFile(std::unique_ptr<WaveFile> file, int sampleRate);
    [[nodiscard]] bool hasFailed() const { return firstFailure_.load(std::memory_order_relaxed) != 0; }

    /// The writer's life.
    void work(const std::stop_token& stop);
    void drainRing();
    /// Keeps the first failure.
    void note(int error);

    SpscRing<float> ring_;
    std::atomic<int> firstFailure_ = 0;  // Relaxed: a word with nothing behind it.

    // The writer's.
    const std::unique_ptr<WaveFile> file_;
    std::array<std::int32_t, 8192> block_{};
    std::jthread writer_;
};

}  // namespace fadeloom
