// SPDX-License-Identifier: MIT
// Typed reading and writing of audio object properties.
//
// Sizes, raw bytes and status codes end here: a property that cannot be read is absent or empty, so that one driver
// that misbehaves leaves out its own device and nothing else.
#pragma once

#include <CoreAudio/CoreAudio.h>

#include <cstddef>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

/// Thread: main.
namespace fadeloom::HAL {

/// The main element of a property.
[[nodiscard]] constexpr AudioObjectPropertyAddress address(
    AudioObjectPropertySelector selector, AudioObjectPropertyScope scope = kAudioObjectPropertyScopeGlobal)
{
    return {selector, scope, kAudioObjectPropertyElementMain};
}

/// Size of a property's value in bytes.
[[nodiscard]] std::expected<std::size_t, OSStatus> size(
    AudioObjectID object, const AudioObjectPropertyAddress& address);
/// Reads a value into `value` and returns how many bytes it took.
[[nodiscard]] std::expected<std::size_t, OSStatus> read(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<std::byte> value);
[[nodiscard]] OSStatus write(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value);

/// Text of an object, global scope. Absent when the object has no such text or cannot be read.
[[nodiscard]] std::optional<std::string> string(AudioObjectID object, AudioObjectPropertySelector selector);

/// A list of object ids. Empty when it cannot be read. A list that grows while it is read is asked for again, a few
/// times.
[[nodiscard]] std::vector<AudioObjectID> getArray(
    AudioObjectID object, AudioObjectPropertySelector selector, AudioObjectPropertyScope scope);

/// A value of fixed size. Absent when it cannot be read or is not exactly as large as `T`.
template <typename T>
[[nodiscard]] std::optional<T> value(AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    static_assert(std::is_trivially_copyable_v<T>);
    T result{};
    const auto bytesRead = read(object, address, std::as_writable_bytes(std::span(&result, 1)));
    if (!bytesRead || *bytesRead != sizeof(T))
        return std::nullopt;
    return result;
}

/// Writes a value of fixed size; returns the platform's status.
template <typename T>
[[nodiscard]] OSStatus setValue(
    AudioObjectID object, const AudioObjectPropertyAddress& address, const T& value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    return write(object, address, std::as_bytes(std::span(&value, 1)));
}

}  // namespace fadeloom::HAL
