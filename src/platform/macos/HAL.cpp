// SPDX-License-Identifier: MIT
#include "platform/macos/HAL.h"

#include "platform/macos/CFRef.h"
#include "platform/macos/CFText.h"

#include <algorithm>

namespace fadeloom::HAL {
namespace {

// A list that has grown between size query and read this many times in a row changes faster than it can be read.
constexpr int arrayAttempts = 4;

}  // namespace

std::expected<std::size_t, OSStatus> size(AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    UInt32 size = 0;
    const OSStatus status = AudioObjectGetPropertyDataSize(object, &address, 0, nullptr, &size);
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    return size;
}

std::expected<std::size_t, OSStatus> read(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<std::byte> value)
{
    auto size = static_cast<UInt32>(value.size());
    const OSStatus status = AudioObjectGetPropertyData(object, &address, 0, nullptr, &size, value.data());
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    return size;
}

OSStatus write(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value)
{
    return AudioObjectSetPropertyData(
        object, &address, 0, nullptr, static_cast<UInt32>(value.size()), value.data());
}

std::optional<std::string> string(AudioObjectID object, AudioObjectPropertySelector selector)
{
    const auto where = address(selector);
    CFStringRef owned = nullptr;
    UInt32 size = sizeof owned;
    const OSStatus status = AudioObjectGetPropertyData(object, &where, 0, nullptr, &size, &owned);
    if (status != kAudioHardwareNoError
        || size != sizeof owned)  // A number is not an object that could be released.
        return std::nullopt;
    const auto text = CFRef<CFStringRef>::adopt(owned);
    return text ? std::optional(textOf(text.get())) : std::nullopt;
}

std::vector<AudioObjectID> getArray(
    AudioObjectID object, AudioObjectPropertySelector selector, AudioObjectPropertyScope scope)
{
    const auto where = address(selector, scope);
    for (int attempt = 0; attempt < arrayAttempts; ++attempt) {
        const auto listSize = size(object, where);
        if (!listSize || *listSize == 0)
            return {};
        // Rounded up, so that an odd size still fits; only complete ids are returned.
        std::vector<AudioObjectID> ids((*listSize + sizeof(AudioObjectID) - 1) / sizeof(AudioObjectID));
        const auto bytesRead = read(object, where, std::as_writable_bytes(std::span(ids)).first(*listSize));
        if (bytesRead) {
            ids.resize(std::min(*bytesRead, *listSize) / sizeof(AudioObjectID));
            return ids;
        }
        if (bytesRead.error() != kAudioHardwareBadPropertySizeError)
            return {};
    }
    return {};
}

}  // namespace fadeloom::HAL
