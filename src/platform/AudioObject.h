// SPDX-License-Identifier: MIT
// Status codes, as extended audio files give them.
#pragma once

#include <cstdint>
#include <expected>

namespace fadeloom {

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

inline constexpr AudioStatus kAudioHardwareNoError = 0;
inline constexpr AudioStatus kAudioHardwareNotRunningError = statusCode("stop");
inline constexpr AudioStatus kAudioHardwareUnspecifiedError = statusCode("what");
inline constexpr AudioStatus kAudioHardwareUnknownPropertyError = statusCode("who?");
inline constexpr AudioStatus kAudioHardwareBadPropertySizeError = statusCode("!siz");
inline constexpr AudioStatus kAudioHardwareIllegalOperationError = statusCode("nope");
inline constexpr AudioStatus kAudioHardwareBadObjectError = statusCode("!obj");
inline constexpr AudioStatus kAudioHardwareBadDeviceError = statusCode("!dev");
inline constexpr AudioStatus kAudioHardwareUnsupportedOperationError = statusCode("unop");

}  // namespace fadeloom
