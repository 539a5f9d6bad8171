// SPDX-License-Identifier: MIT
// Typed access to audio object properties.
//
// Encapsulates sizes, raw bytes and status codes: a property that cannot be read is absent or empty, so that a
// misbehaving driver affects only its own device.
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

/// The size of a property's value in bytes.
[[nodiscard]] std::expected<std::size_t, OSStatus> size(
    AudioObjectID object, const AudioObjectPropertyAddress& address);
/// Reads a value into `value` and returns its size in bytes.
[[nodiscard]] std::expected<std::size_t, OSStatus> read(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<std::byte> value);
[[nodiscard]] OSStatus write(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value);

/// A string property of an object, global scope. nullopt if the object has no such property or it cannot be read.
[[nodiscard]] std::optional<std::string> string(AudioObjectID object, AudioObjectPropertySelector selector);

/// A list of object ids. Empty if it cannot be read. If the list grows while it is read, the read is retried a few
/// times.
[[nodiscard]] std::vector<AudioObjectID> getArray(
    AudioObjectID object, AudioObjectPropertySelector selector, AudioObjectPropertyScope scope);

/// A value of fixed size. nullopt if it cannot be read or its size is not that of `T`.
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
