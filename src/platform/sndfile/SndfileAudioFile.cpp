// SPDX-License-Identifier: MIT
#include "platform/sndfile/SndfileAudioFile.h"

#include "platform/sndfile/Pcm24.h"

#include <pthread.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <span>
#include <system_error>
#include <utility>

namespace fadeloom {

namespace {

constexpr std::size_t ringSeconds = 4;  // A disk that spins up, or is busy, takes one or two.
constexpr std::chrono::milliseconds pause{100};

}  // namespace

std::expected<std::unique_ptr<SndfileAudioFile>, int> SndfileAudioFile::open(
    std::unique_ptr<DiskFile> disk, int sampleRate)
{
    auto file = WaveFile::create(std::move(disk), sampleRate);
    if (!file)
        return std::unexpected(file.error());
    std::unique_ptr<SndfileAudioFile> opened{new SndfileAudioFile(std::move(*file), sampleRate)};
    try {
        opened->writer_ =
            std::jthread{[self = opened.get()](const std::stop_token& stop) { self->work(stop); }};
    } catch (const std::system_error& error) {
        return std::unexpected(error.code().value());
    }
    return opened;
}

SndfileAudioFile::SndfileAudioFile(std::unique_ptr<WaveFile> file, int sampleRate)
    : ring_(ringSeconds * static_cast<std::size_t>(sampleRate) * WaveFile::channels)
    , file_(std::move(file))
{
}

SndfileAudioFile::~SndfileAudioFile()
{
    close();
}

bool SndfileAudioFile::write(std::span<const float> samples) noexcept
{
    return hasFailed() || ring_.push(samples);
}

std::optional<AudioFileError> SndfileAudioFile::failure() const
{
    const int error = firstFailure_.load(std::memory_order_relaxed);
    return error == 0 ? std::nullopt : std::optional(AudioFileError{error});
}

std::optional<AudioFileError> SndfileAudioFile::close()
{
    writer_.request_stop();
    if (writer_.joinable())
        writer_.join();
    return failure();
}

void SndfileAudioFile::work(const std::stop_token& stop)
{
    pthread_setname_np(pthread_self(), "fadeloom-writer");
    std::mutex mutex;
    std::condition_variable_any stopped;  // Notified only by a stop request.
    std::unique_lock lock{mutex};
    while (!stop.stop_requested()) {
        drainRing();
        stopped.wait_for(lock, stop, pause, [] { return false; });
    }
    drainRing();
    note(file_->close());
}

void SndfileAudioFile::drainRing()
{
    while (!hasFailed()) {
        const auto waiting = ring_.oldest();
        if (waiting.empty())
            return;
        const auto samples = waiting.first(std::min(waiting.size(), block_.size()));
        const auto block = std::span{block_}.first(samples.size());
        convertToPcm24(samples, block);
        note(file_->append(block));
        ring_.release(samples.size());
    }
}

void SndfileAudioFile::note(int error)
{
    if (!hasFailed())
        firstFailure_.store(error, std::memory_order_relaxed);
}

}  // namespace fadeloom
