// SPDX-License-Identifier: MIT
#include "platform/macos/AudioFileHandle.h"

#include "platform/WaveFormats.h"

#include <AudioToolbox/AudioToolbox.h>

#include <utility>

namespace fadeloom {

AudioFileHandle::AudioFileHandle(OpaqueExtAudioFile* owned, double sampleRate)
    : file_(owned)
    , sampleRate_(sampleRate)
{
}

AudioFileHandle::~AudioFileHandle()
{
    close();
}

AudioStatus AudioFileHandle::setClientFormat(const AudioStreamBasicDescription& format)
{
    // The platform would convert from more formats than `write` can hand over.
    if (!isSameFormat(format, waveClientFormat(sampleRate_)))
        return kExtAudioFileError_InvalidDataFormat;
    return ExtAudioFileSetProperty(file_, kExtAudioFileProperty_ClientDataFormat, sizeof format, &format);
}

AudioStatus AudioFileHandle::write(
    std::uint32_t frameCount, const float* samples) noexcept FADELOOM_NONBLOCKING
{
    ::AudioBufferList list{1, {{2, frameCount * 2 * UInt32{sizeof(float)}, const_cast<float*>(samples)}}};
    const AudioStatus status =
        ExtAudioFileWriteAsync(file_, frameCount, samples == nullptr ? nullptr : &list);
    if (status == kExtAudioFileError_AsyncWriteBufferOverflow) {
        droppedWrites_.fetch_add(1, std::memory_order_relaxed);
    } else if (status != kAudioHardwareNoError) {
        AudioStatus none = kAudioHardwareNoError;
        status_.compare_exchange_strong(none, status, std::memory_order_relaxed);
    }
    return status;
}

AudioFileHealth AudioFileHandle::health() const
{
    return {status_.load(std::memory_order_relaxed), droppedWrites_.load(std::memory_order_relaxed)};
}

AudioStatus AudioFileHandle::close()
{
    auto* const open = std::exchange(file_, nullptr);
    return open == nullptr ? kAudioHardwareNoError : ExtAudioFileDispose(open);
}

}  // namespace fadeloom
