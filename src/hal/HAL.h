// SPDX-License-Identifier: MIT
// Typed reading and writing of audio object properties.
//
// Sizes, raw bytes and status codes end here: a property that cannot be read is absent or empty, so that one driver
// that misbehaves leaves out its own device and nothing else.
#pragma once

#include "platform/AudioHardware.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace fadeloom::HAL {

/// Text of an object, global scope. Absent when the object has no such text or cannot be read. Thread: main.
[[nodiscard]] std::optional<std::string> string(
    const AudioHardware& hardware, AudioObjectID object, AudioObjectPropertySelector selector);

/// A list of object ids. Empty when it cannot be read. A list that grows while it is read is asked for again, a few
/// times. Thread: main.
[[nodiscard]] std::vector<AudioObjectID> getArray(const AudioHardware& hardware, AudioObjectID object,
    AudioObjectPropertySelector selector, AudioObjectPropertyScope scope);

/// A value of fixed size. Absent when it cannot be read or is not exactly as large as `T`. Thread: main.
template <typename T>
[[nodiscard]] std::optional<T> value(
    const AudioHardware& hardware, AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    static_assert(std::is_trivially_copyable_v<T>);
    T result{};
    const auto bytesRead =
        hardware.readProperty(object, address, std::as_writable_bytes(std::span(&result, 1)));
    if (!bytesRead || *bytesRead != sizeof(T))
        return std::nullopt;
    return result;
}

/// Writes a value of fixed size; returns the platform's status. Thread: main.
template <typename T>
[[nodiscard]] AudioStatus setValue(
    AudioHardware& hardware, AudioObjectID object, const AudioObjectPropertyAddress& address, const T& value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    return hardware.writeProperty(object, address, std::as_bytes(std::span(&value, 1)));
}

}  // namespace fadeloom::HAL
