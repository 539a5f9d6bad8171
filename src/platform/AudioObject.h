// SPDX-License-Identifier: MIT
// The vocabulary of the audio hardware layer: object ids, property addresses, selectors, status codes.
//
// The names and four-character codes are those of CoreAudio, so that its adapter passes them through; the other
// adapters answer the same questions about their own worlds.
#pragma once

#include <compare>
#include <cstdint>
#include <expected>

namespace fadeloom {

using AudioObjectID = std::uint32_t;
using AudioObjectPropertySelector = std::uint32_t;
using AudioObjectPropertyScope = std::uint32_t;
using AudioObjectPropertyElement = std::uint32_t;

/// 0 is success; every other value is a code of the platform, most often four characters.
using AudioStatus = std::int32_t;

template <typename T>
using AudioResult = std::expected<T, AudioStatus>;

/// The number that four characters stand for, the first one in the highest byte.
[[nodiscard]] constexpr std::uint32_t fourCharacterCode(const char (&text)[5]) noexcept
{
    std::uint32_t code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | static_cast<unsigned char>(text[i]);
    return code;
}

/// The same number as a status.
[[nodiscard]] constexpr AudioStatus statusCode(const char (&text)[5]) noexcept
{
    return static_cast<AudioStatus>(fourCharacterCode(text));
}

inline constexpr AudioObjectID kAudioObjectUnknown = 0;
inline constexpr AudioObjectID kAudioObjectSystemObject = 1;

inline constexpr AudioObjectPropertyScope kAudioObjectPropertyScopeGlobal = fourCharacterCode("glob");
inline constexpr AudioObjectPropertyScope kAudioObjectPropertyScopeInput = fourCharacterCode("inpt");
inline constexpr AudioObjectPropertyScope kAudioObjectPropertyScopeOutput = fourCharacterCode("outp");
inline constexpr AudioObjectPropertyElement kAudioObjectPropertyElementMain = 0;

// Of every object that has a name. Text.
inline constexpr AudioObjectPropertySelector kAudioObjectPropertyName = fourCharacterCode("lnam");

// Of the system object. Lists of object ids; the default device is one id, and settable.
inline constexpr AudioObjectPropertySelector kAudioHardwarePropertyDevices = fourCharacterCode("dev#");
inline constexpr AudioObjectPropertySelector kAudioHardwarePropertyDefaultOutputDevice =
    fourCharacterCode("dOut");
inline constexpr AudioObjectPropertySelector kAudioHardwarePropertyProcessObjectList =
    fourCharacterCode("prs#");

// Of devices.
inline constexpr AudioObjectPropertySelector kAudioDevicePropertyDeviceUID = fourCharacterCode("uid ");
inline constexpr AudioObjectPropertySelector kAudioDevicePropertyNominalSampleRate =
    fourCharacterCode("nsrt");  // double, hertz
inline constexpr AudioObjectPropertySelector kAudioDevicePropertyStreams =
    fourCharacterCode("stm#");  // object ids, per scope
inline constexpr AudioObjectPropertySelector kAudioDevicePropertyPreferredChannelsForStereo =
    fourCharacterCode("dch2");  // two uint32, channels numbered from 1, per scope
inline constexpr AudioObjectPropertySelector kAudioDevicePropertyIOProcStreamUsage =
    fourCharacterCode("suse");  // AudioHardwareIOProcStreamUsage, per scope

// Of audio processes.
inline constexpr AudioObjectPropertySelector kAudioProcessPropertyPID = fourCharacterCode("ppid");  // int32
inline constexpr AudioObjectPropertySelector kAudioProcessPropertyBundleID =
    fourCharacterCode("pbid");  // text
inline constexpr AudioObjectPropertySelector kAudioProcessPropertyIsRunningInput =
    fourCharacterCode("piri");  // uint32
inline constexpr AudioObjectPropertySelector kAudioProcessPropertyIsRunningOutput =
    fourCharacterCode("piro");  // uint32

// Of process taps.
inline constexpr AudioObjectPropertySelector kAudioTapPropertyFormat =
    fourCharacterCode("tfmt");  // AudioStreamBasicDescription

inline constexpr AudioStatus kAudioHardwareNoError = 0;
inline constexpr AudioStatus kAudioHardwareNotRunningError = statusCode("stop");
inline constexpr AudioStatus kAudioHardwareUnspecifiedError = statusCode("what");
inline constexpr AudioStatus kAudioHardwareUnknownPropertyError = statusCode("who?");
inline constexpr AudioStatus kAudioHardwareBadPropertySizeError = statusCode("!siz");
inline constexpr AudioStatus kAudioHardwareIllegalOperationError = statusCode("nope");
inline constexpr AudioStatus kAudioHardwareBadObjectError = statusCode("!obj");
inline constexpr AudioStatus kAudioHardwareBadDeviceError = statusCode("!dev");
inline constexpr AudioStatus kAudioHardwareUnsupportedOperationError = statusCode("unop");

/// Which property of an object is meant.
struct AudioObjectPropertyAddress {
    AudioObjectPropertySelector selector = 0;
    AudioObjectPropertyScope scope = kAudioObjectPropertyScopeGlobal;
    AudioObjectPropertyElement element = kAudioObjectPropertyElementMain;

    friend auto operator<=>(const AudioObjectPropertyAddress&, const AudioObjectPropertyAddress&) = default;
};

}  // namespace fadeloom
