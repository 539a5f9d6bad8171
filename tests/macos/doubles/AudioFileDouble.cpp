// SPDX-License-Identifier: MIT
// A double of extended audio files: it converts floats and writes WAVE files, synchronously where the real one is not.
#include "tests/macos/doubles/AudioFileDouble.h"

#include "tests/macos/doubles/Journal.h"
#include "tests/macos/doubles/Runtime.h"
#include "tests/macos/doubles/UrlText.h"

#include <AudioToolbox/AudioToolbox.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <map>
#include <memory>
#include <utility>
#include <vector>

struct OpaqueExtAudioFile {
    std::ofstream file;
    AudioStreamBasicDescription format{};
    bool hasClientFormat = false;
    std::vector<char> samples{};
};

namespace doubles {
namespace {

std::size_t openCount = 0;
std::map<std::string, std::vector<OSStatus>> statuses;

OSStatus begin(const std::string& call)
{
    note(call);
    auto& waiting = statuses[call.substr(0, call.find(' '))];
    if (waiting.empty())
        return 0;
    const OSStatus status = waiting.front();
    waiting.erase(waiting.begin());
    return status;
}

template <typename Number>
void append(std::vector<char>& bytes, Number number)
{
    for (std::size_t i = 0; i < sizeof number; ++i)
        bytes.push_back(static_cast<char>(static_cast<std::uint64_t>(number) >> 8 * i));
}

void append(std::vector<char>& bytes, const char* text)
{
    bytes.insert(bytes.end(), text, text + 4);
}

std::vector<char> header(double rate, std::size_t size)
{
    std::vector<char> bytes;
    append(bytes, "RIFF");
    append(bytes, static_cast<std::uint32_t>(36 + size));
    append(bytes, "WAVE");
    append(bytes, "fmt ");
    append(bytes, std::uint32_t{16});
    append(bytes, std::uint16_t{1});
    append(bytes, std::uint16_t{2});
    append(bytes, static_cast<std::uint32_t>(rate));
    append(bytes, static_cast<std::uint32_t>(rate * 6));
    append(bytes, std::uint16_t{6});
    append(bytes, std::uint16_t{24});
    append(bytes, "data");
    append(bytes, static_cast<std::uint32_t>(size));
    return bytes;
}

void appendStep(std::vector<char>& bytes, float sample)
{
    const float full = std::isnan(sample) ? 0 : std::clamp(sample, -1.0F, 1.0F) * 0x1p23F;
    const auto step = static_cast<std::int32_t>(std::min(std::round(full), 0x1p23F - 1));
    for (int shift = 0; shift < 24; shift += 8)
        bytes.push_back(static_cast<char>(step >> shift));
}

}  // namespace

std::size_t openAudioFiles()
{
    return openCount;
}

void failNextFileCall(const std::string& call, std::vector<std::int32_t> results)
{
    statuses[call] = std::move(results);
}

}  // namespace doubles

using namespace doubles;

extern "C" {

OSStatus ExtAudioFileCreateWithURL(CFURLRef location, AudioFileTypeID type,
    const AudioStreamBasicDescription* format, const AudioChannelLayout* layout, UInt32 flags,
    ExtAudioFileRef* file)
{
    const OSStatus status = begin("ExtAudioFileCreateWithURL type " + std::to_string(type) + " flags "
        + std::to_string(flags) + (layout == nullptr ? "" : " with a layout"));
    if (status != 0)
        return status;
    auto made = std::make_unique<OpaqueExtAudioFile>(
        std::ofstream(urlPath(location), std::ios::binary | std::ios::trunc), *format);
    if (!made->file)
        return -43;  // There is no such folder.
    ++openCount;
    *file = made.release();
    return 0;
}

OSStatus ExtAudioFileSetProperty(
    ExtAudioFileRef file, ExtAudioFilePropertyID property, UInt32 size, const void* value)
{
    if (const OSStatus status = begin("ExtAudioFileSetProperty " + std::to_string(size)))
        return status;
    AudioStreamBasicDescription format{};
    if (property != kExtAudioFileProperty_ClientDataFormat || size != sizeof format)
        return -50;
    std::memcpy(&format, value, sizeof format);
    file->hasClientFormat = format.mFormatID == kAudioFormatLinearPCM;
    return file->hasClientFormat ? 0 : kExtAudioFileError_InvalidDataFormat;
}

OSStatus ExtAudioFileWriteAsync(ExtAudioFileRef file, UInt32 frames, const AudioBufferList* samples)
{
    if (const OSStatus status = begin("ExtAudioFileWriteAsync "
            + (samples == nullptr ? "nothing" : std::to_string(frames) + " frames")))
        return status;
    if (!file->hasClientFormat)
        return kExtAudioFileError_InvalidOperationOrder;
    if (samples == nullptr)
        return frames == 0 ? 0 : -50;
    const AudioBuffer& only = samples->mBuffers[0];
    if (samples->mNumberBuffers != 1 || only.mNumberChannels != 2 || only.mDataByteSize != frames * 8)
        return -50;
    const auto* const floats = static_cast<const float*>(only.mData);
    for (std::size_t i = 0; i < 2 * std::size_t{frames}; ++i)
        appendStep(file->samples, floats[i]);
    return 0;
}

OSStatus ExtAudioFileDispose(ExtAudioFileRef file)
{
    const std::unique_ptr<OpaqueExtAudioFile> owned(file);
    --openCount;
    const OSStatus status = begin("ExtAudioFileDispose");
    const auto head = header(owned->format.mSampleRate, owned->samples.size());
    owned->file.write(head.data(), static_cast<std::streamsize>(head.size()));
    owned->file.write(owned->samples.data(), static_cast<std::streamsize>(owned->samples.size()));
    return status;
}
}
