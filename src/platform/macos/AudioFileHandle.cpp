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

AudioStatus AudioFileHandle::write(std::uint32_t frameCount, const float* samples) noexcept
{
    ::AudioBufferList list{1, {{2, frameCount * 2 * UInt32{sizeof(float)}, const_cast<float*>(samples)}}};
    const AudioStatus status =
        ExtAudioFileWriteAsync(file_, frameCount, samples == nullptr ? nullptr : &list);
    if (status != kExtAudioFileError_AsyncWriteBufferOverflow && status_ == kAudioHardwareNoError)
        status_ = status;
    return status;
}

AudioStatus AudioFileHandle::close()
{
    auto* const open = std::exchange(file_, nullptr);
    return open == nullptr ? kAudioHardwareNoError : ExtAudioFileDispose(open);
}

}  // namespace fadeloom
