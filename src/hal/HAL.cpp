// SPDX-License-Identifier: MIT
#include "hal/HAL.h"

#include <algorithm>
#include <utility>

namespace fadeloom::HAL {

namespace {

// A list that has outgrown its size this many times in a row is being changed faster than it can be read.
constexpr int arrayAttempts = 4;

}  // namespace

std::optional<std::string> string(
    const AudioHardware& hardware, AudioObjectID object, AudioObjectPropertySelector selector)
{
    auto text = hardware.readText(object, {.selector = selector});
    return text ? std::move(*text) : std::nullopt;
}

std::vector<AudioObjectID> getArray(const AudioHardware& hardware, AudioObjectID object,
    AudioObjectPropertySelector selector, AudioObjectPropertyScope scope)
{
    const AudioObjectPropertyAddress address{.selector = selector, .scope = scope};
    for (int attempt = 0; attempt < arrayAttempts; ++attempt) {
        const auto size = hardware.propertySize(object, address);
        if (!size || *size == 0)
            return {};
        // Rounded up, so that an odd size still fits; only whole ids are handed on.
        std::vector<AudioObjectID> ids((*size + sizeof(AudioObjectID) - 1) / sizeof(AudioObjectID));
        const auto bytesRead =
            hardware.readProperty(object, address, std::as_writable_bytes(std::span(ids)).first(*size));
        if (bytesRead) {
            ids.resize(std::min(*bytesRead, *size) / sizeof(AudioObjectID));
            return ids;
        }
        if (bytesRead.error() != kAudioHardwareBadPropertySizeError)
            return {};
    }
    return {};
}

}  // namespace fadeloom::HAL
