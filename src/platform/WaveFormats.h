// SPDX-License-Identifier: MIT
// The two formats of a recording: on the disk, and of the samples that are handed over.
#pragma once

#include "platform/AudioStream.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace fadeloom {

/// Stereo, interleaved and without gaps. `sampleRate`: hertz. `sampleFlag`: what a sample of so many bits is.
[[nodiscard]] constexpr AudioStreamBasicDescription packedStereoFormat(
    double sampleRate, std::uint32_t sampleFlag, std::uint32_t bitsPerSample)
{
    const std::uint32_t bytesPerFrame = 2 * bitsPerSample / 8;
    return {
        .sampleRate = sampleRate,
        .formatID = kAudioFormatLinearPCM,
        .formatFlags = sampleFlag | kAudioFormatFlagIsPacked,
        .bytesPerPacket = bytesPerFrame,
        .framesPerPacket = 1,
        .bytesPerFrame = bytesPerFrame,
        .channelsPerFrame = 2,
        .bitsPerChannel = bitsPerSample,
    };
}

/// On the disk: 24-bit integers.
[[nodiscard]] constexpr AudioStreamBasicDescription waveFileFormat(double sampleRate)
{
    return packedStereoFormat(sampleRate, kAudioFormatFlagIsSignedInteger, 24);
}

/// As samples are handed over: floats.
[[nodiscard]] constexpr AudioStreamBasicDescription waveClientFormat(double sampleRate)
{
    return packedStereoFormat(sampleRate, kAudioFormatFlagIsFloat, 32);
}

/// Whether all fields are the same.
[[nodiscard]] constexpr bool isSameFormat(
    const AudioStreamBasicDescription& a, const AudioStreamBasicDescription& b)
{
    using Bytes = std::array<std::byte, sizeof(AudioStreamBasicDescription)>;
    return std::bit_cast<Bytes>(a) == std::bit_cast<Bytes>(b);
}

}  // namespace fadeloom
