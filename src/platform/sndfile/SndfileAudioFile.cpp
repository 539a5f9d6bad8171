// SPDX-License-Identifier: MIT
#include "platform/sndfile/SndfileAudioFile.h"

#include "platform/WaveFormats.h"
#include "platform/sndfile/FileStatus.h"
#include "platform/sndfile/Pcm24.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <span>
#include <system_error>
#include <utility>

#include <pthread.h>

namespace fadeloom {

namespace {

constexpr std::size_t ringSeconds = 4;  // A disk that wakes up, or is busy with others, takes one or two.
constexpr std::chrono::milliseconds pause{100};

}  // namespace

AudioResult<std::unique_ptr<SndfileAudioFile>> SndfileAudioFile::open(
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
    : sampleRate_(sampleRate)
    , ring_(ringSeconds * static_cast<std::size_t>(sampleRate) * WaveFile::channels)
    , file_(std::move(file))
{
}

SndfileAudioFile::~SndfileAudioFile()
{
    close();
}

AudioStatus SndfileAudioFile::setClientFormat(const AudioStreamBasicDescription& format)
{
    if (!isSameFormat(format, waveClientFormat(sampleRate_)))
        return kExtAudioFileError_InvalidDataFormat;
    hasClientFormat_ = true;
    return kAudioHardwareNoError;
}

AudioStatus SndfileAudioFile::write(std::uint32_t frameCount, const float* samples) noexcept
{
    if (!hasClientFormat_)
        return kExtAudioFileError_InvalidOperationOrder;
    const AudioStatus status = status_.load(std::memory_order_relaxed);
    if (status != kAudioHardwareNoError || frameCount == 0)  // There is nothing left to prime.
        return status;
    return ring_.push({samples, std::size_t{frameCount} * WaveFile::channels})
        ? kAudioHardwareNoError
        : kExtAudioFileError_AsyncWriteBufferOverflow;
}

AudioStatus SndfileAudioFile::close()
{
    writer_.request_stop();
    if (writer_.joinable())
        writer_.join();
    return status_.load(std::memory_order_relaxed);
}

void SndfileAudioFile::work(const std::stop_token& stop)
{
    pthread_setname_np(pthread_self(), "fadeloom-writer");
    std::mutex mutex;
    std::condition_variable_any stopped;  // A request to stop notifies it; nothing else does.
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
    while (status_.load(std::memory_order_relaxed) == kAudioHardwareNoError) {
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

void SndfileAudioFile::note(AudioStatus status)
{
    if (status_.load(std::memory_order_relaxed) == kAudioHardwareNoError)
        status_.store(status, std::memory_order_relaxed);
}

}  // namespace fadeloom
