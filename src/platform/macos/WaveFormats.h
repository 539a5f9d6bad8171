// SPDX-License-Identifier: MIT
// The two formats of a recording: in the file, and of the samples that are written.
#pragma once

#include <CoreAudio/CoreAudioTypes.h>

namespace fadeloom {

/// Stereo, interleaved and packed. `sampleRate`: hertz. `sampleFlag`: the sample type.
[[nodiscard]] constexpr AudioStreamBasicDescription packedStereoFormat(
    double sampleRate, AudioFormatFlags sampleFlag, UInt32 bitsPerSample)
{
    const UInt32 bytesPerFrame = 2 * bitsPerSample / 8;
    return {
        .mSampleRate = sampleRate,
        .mFormatID = kAudioFormatLinearPCM,
        .mFormatFlags = sampleFlag | kAudioFormatFlagIsPacked,
        .mBytesPerPacket = bytesPerFrame,
        .mFramesPerPacket = 1,
        .mBytesPerFrame = bytesPerFrame,
        .mChannelsPerFrame = 2,
        .mBitsPerChannel = bitsPerSample,
        .mReserved = 0,
    };
}

/// In the file: 24-bit integers.
[[nodiscard]] constexpr AudioStreamBasicDescription waveFileFormat(double sampleRate)
{
    return packedStereoFormat(sampleRate, kAudioFormatFlagIsSignedInteger, 24);
}

/// As written by us: floats.
[[nodiscard]] constexpr AudioStreamBasicDescription waveClientFormat(double sampleRate)
{
    return packedStereoFormat(sampleRate, kAudioFormatFlagIsFloat, 32);
}

}  // namespace fadeloom
