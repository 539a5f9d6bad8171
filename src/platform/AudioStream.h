// SPDX-License-Identifier: MIT
// Stream formats, laid out as the audio hardware layer lays them out.
#pragma once

#include "platform/AudioObject.h"

#include <cstdint>

namespace fadeloom {

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

}  // namespace fadeloom
