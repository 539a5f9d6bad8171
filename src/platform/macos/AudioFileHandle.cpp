// SPDX-License-Identifier: MIT
#include "platform/macos/AudioFileHandle.h"

#include "platform/macos/CFRef.h"
#include "platform/macos/WaveFormats.h"

#include <AudioToolbox/AudioToolbox.h>

#include <utility>

namespace fadeloom {
namespace {

CFRef<CFURLRef> cfLocation(const std::filesystem::path& file)
{
    const auto& bytes = file.native();
    return CFRef<CFURLRef>::adopt(CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault,
        reinterpret_cast<const UInt8*>(bytes.data()), static_cast<CFIndex>(bytes.size()), false));
}

}  // namespace

std::expected<std::unique_ptr<AudioFileHandle>, TapError> AudioFileHandle::create(
    const std::filesystem::path& location, double sampleRate)
{
    const auto url = cfLocation(location);
    if (!url || !(sampleRate > 0))
        return std::unexpected(
            TapError{"Create recording file", OSStatus{kAudioFileUnsupportedDataFormatError}});
    const auto fileFormat = waveFileFormat(sampleRate);
    ExtAudioFileRef created = nullptr;
    const OSStatus status = ExtAudioFileCreateWithURL(
        url.get(), kAudioFileWAVEType, &fileFormat, nullptr, kAudioFileFlags_EraseFile, &created);
    if (status != 0 || created == nullptr)
        return std::unexpected(TapError{"Create recording file", status});
    std::unique_ptr<AudioFileHandle> file{new AudioFileHandle(created)};

    const auto clientFormat = waveClientFormat(sampleRate);
    if (const OSStatus refused = ExtAudioFileSetProperty(
            created, kExtAudioFileProperty_ClientDataFormat, sizeof clientFormat, &clientFormat))
        return std::unexpected(TapError{"Set recording format", refused});
    file->note(ExtAudioFileWriteAsync(created, 0, nullptr));
    return file;
}

AudioFileHandle::~AudioFileHandle()
{
    close();
}

bool AudioFileHandle::write(std::span<const float> samples) noexcept
{
    const auto frameCount = static_cast<UInt32>(samples.size() / 2);
    const ::AudioBufferList list{
        1, {{2, static_cast<UInt32>(samples.size_bytes()), const_cast<float*>(samples.data())}}};
    const OSStatus status = ExtAudioFileWriteAsync(file_, frameCount, &list);
    if (status == kExtAudioFileError_AsyncWriteBufferOverflow)
        return false;
    note(status);
    return true;
}

std::optional<AudioFileError> AudioFileHandle::failure() const
{
    return firstFailure_ == 0 ? std::nullopt : std::optional(AudioFileError{firstFailure_});
}

std::optional<AudioFileError> AudioFileHandle::close()
{
    if (auto* const open = std::exchange(file_, nullptr))
        note(ExtAudioFileDispose(open));
    return failure();
}

void AudioFileHandle::note(std::int32_t status)
{
    if (firstFailure_ == 0)
        firstFailure_ = status;
}

}  // namespace fadeloom
