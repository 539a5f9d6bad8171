// SPDX-License-Identifier: MIT
#include "platform/macos/ExtendedAudioFiles.h"

#include "platform/WaveFormats.h"
#include "platform/macos/AudioFileHandle.h"
#include "platform/macos/CFRef.h"
#include "platform/macos/StatusText.h"

#include <AudioToolbox/AudioToolbox.h>

#include <algorithm>
#include <cassert>
#include <system_error>

namespace fadeloom {
namespace {

CFRef<CFURLRef> cfLocation(const std::filesystem::path& file)
{
    const auto& bytes = file.native();
    return CFRef<CFURLRef>::adopt(CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault,
        reinterpret_cast<const UInt8*>(bytes.data()), static_cast<CFIndex>(bytes.size()), false));
}

}  // namespace

ExtendedAudioFiles::ExtendedAudioFiles() = default;
ExtendedAudioFiles::~ExtendedAudioFiles() = default;

bool ExtendedAudioFiles::isTaken(const std::filesystem::path& location) const
{
    std::error_code unknown;  // Then creating the file fails, too, and says why.
    return std::filesystem::exists(std::filesystem::symlink_status(location, unknown));
}

AudioResult<AudioFile*> ExtendedAudioFiles::create(
    const std::filesystem::path& location, const AudioStreamBasicDescription& fileFormat)
{
    // The platform would make files in more formats than are meant here.
    const bool isMeant =
        fileFormat.sampleRate > 0 && isSameFormat(fileFormat, waveFileFormat(fileFormat.sampleRate));
    const auto url = cfLocation(location);
    if (!isMeant || !url)
        return std::unexpected(kAudioFileUnsupportedDataFormatError);
    ExtAudioFileRef file = nullptr;
    const AudioStatus status = ExtAudioFileCreateWithURL(url.get(), kAudioFileWAVEType,
        reinterpret_cast<const ::AudioStreamBasicDescription*>(&fileFormat), nullptr,
        kAudioFileFlags_EraseFile, &file);
    if (status != kAudioHardwareNoError || file == nullptr)
        return std::unexpected(status);
    return files_.emplace_back(std::make_unique<AudioFileHandle>(file, fileFormat.sampleRate)).get();
}

AudioStatus ExtendedAudioFiles::dispose(AudioFile& file)
{
    const auto found =
        std::ranges::find(files_, &file, [](const auto& open) -> const AudioFile* { return open.get(); });
    assert(found != files_.end());
    const AudioStatus status = (*found)->close();
    files_.erase(found);
    return status;
}

std::string ExtendedAudioFiles::describe(AudioStatus status) const
{
    return statusText(status);
}

}  // namespace fadeloom
