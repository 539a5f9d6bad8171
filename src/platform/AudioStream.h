// SPDX-License-Identifier: MIT
// Sample buffers and stream formats, laid out as the audio hardware layer lays them out.
#pragma once

#include "platform/AudioObject.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace fadeloom {

/// One buffer of an IO cycle: 32-bit float samples, `channels` of them interleaved per frame.
/// `data` may be null (a stream that is switched off); `byteSize` may then still be set.
struct AudioBuffer {
    std::uint32_t channels = 0;
    std::uint32_t byteSize = 0;
    void* data = nullptr;
};

/// The buffers of one direction in one IO cycle, in the device's stream order.
using AudioBuffers = std::span<const AudioBuffer>;

inline constexpr std::uint32_t kAudioFormatLinearPCM = fourCharacterCode("lpcm");
inline constexpr std::uint32_t kAudioFormatFlagIsFloat = 1U << 0;
inline constexpr std::uint32_t kAudioFormatFlagIsSignedInteger = 1U << 2;
inline constexpr std::uint32_t kAudioFormatFlagIsPacked = 1U << 3;
inline constexpr std::uint32_t kAudioFormatFlagIsNonInterleaved = 1U << 5;

/// A stream's format. Of a non-interleaved stream the per-frame sizes describe one channel.
struct AudioStreamBasicDescription {
    double sampleRate = 0;  // hertz
    std::uint32_t formatID = 0;
    std::uint32_t formatFlags = 0;
    std::uint32_t bytesPerPacket = 0;
    std::uint32_t framesPerPacket = 0;
    std::uint32_t bytesPerFrame = 0;
    std::uint32_t channelsPerFrame = 0;
    std::uint32_t bitsPerChannel = 0;
    std::uint32_t reserved = 0;
};
static_assert(sizeof(AudioStreamBasicDescription) == 40);

/// Identifies an IO procedure on its device; opaque.
using AudioDeviceIOProcID = void*;

/// Head of the record behind `kAudioDevicePropertyIOProcStreamUsage`. One uint32 flag per stream of the scope
/// follows at `flagsOffset`: 1 while the stream is used by the procedure.
struct AudioHardwareIOProcStreamUsage {
    AudioDeviceIOProcID ioProc = nullptr;
    std::uint32_t streamCount = 0;
    std::uint32_t firstFlag = 0;

    static constexpr std::size_t flagsOffset = 12;
};
static_assert(sizeof(AudioHardwareIOProcStreamUsage) == 16);
static_assert(
    offsetof(AudioHardwareIOProcStreamUsage, firstFlag) == AudioHardwareIOProcStreamUsage::flagsOffset);

}  // namespace fadeloom
